#pragma once
// A fresh folder in the temp directory for one test, named for the test and the process so
// that tests running side by side never meet, and removed again at the end.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>

namespace vexlo::test {

class TestFolder {
public:
    explicit TestFolder(const std::string& prefix)
        : m_dir(std::filesystem::temp_directory_path() /
                (prefix + "_" + std::to_string(::getpid()) + "_" +
                 ::testing::UnitTest::GetInstance()->current_test_info()->name())) {
        std::filesystem::remove_all(m_dir);
        std::filesystem::create_directories(m_dir);
    }
    ~TestFolder() {
        std::error_code ec;
        std::filesystem::permissions(m_dir, std::filesystem::perms::owner_all, ec);
        std::filesystem::remove_all(m_dir, ec);
    }
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    const std::filesystem::path& Dir() const { return m_dir; }
    std::string Path(const std::string& name) const { return (m_dir / name).string(); }

private:
    std::filesystem::path m_dir;
};

}  // namespace vexlo::test
