// The folder dialog without a window: a small folder tree in the temp directory, entered,
// listed and answered through a scripted Host.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "core/utilities/dir_dialog_model.h"
#include "support/scripted_host.h"
#include "support/test_folder.h"

namespace vexlo::utilities {
namespace {

namespace fs = std::filesystem;
using host::MsgAnswer;
using Names = std::vector<std::string>;

// The process's current directory, put back at the end of a test.
struct CurrentDirGuard {
    fs::path saved = fs::current_path();
    ~CurrentDirGuard() {
        std::error_code ec;
        fs::current_path(saved, ec);
    }
};

void Touch(const fs::path& path) { std::ofstream(path).put('x'); }

// Three icons (one upper-cased), a text file, a hidden icon, subfolders "sub.ico", "Beta",
// "alpha" and a hidden one.
struct IconTree {
    test::TestFolder folder{"dir_dialog"};
    IconTree() {
        for (const char* name : {"a.ico", "b.ico", "C.ICO", "note.txt", ".hidden.ico"})
            Touch(Dir() / name);
        for (const char* name : {"sub.ico", "Beta", "alpha", ".git"}) fs::create_directory(Dir() / name);
    }
    const fs::path& Dir() const { return folder.Dir(); }
    std::string Path(const std::string& name = "") const {
        return name.empty() ? Dir().string() : (Dir() / name).string();
    }
};

// The texts of the folder rows below the open folder.
Names SubfolderTexts(const DirDialogModel& model) {
    Names out;
    for (std::size_t i = model.OpenRow() + 1; i < model.Folders().size(); ++i)
        out.push_back(model.Folders()[i].Text);
    return out;
}

TEST(DirDialogModel, ListsAncestorsIndentedThenSubfoldersThenFilesByPattern) {
    CurrentDirGuard cwd;
    IconTree tree;
    test::ScriptedHost host;
    DirDialogModel model(host, "*.ico", false);
    ASSERT_TRUE(model.EnterFolder(tree.Path()));

    EXPECT_EQ(model.Folder(), tree.Path());
    EXPECT_EQ(model.ChosenFolder(), tree.Path());
    EXPECT_EQ(fs::current_path(), tree.Dir());

    // One row per step from the root, two blanks deeper each, all open.
    std::vector<FolderRow> ancestors;
    fs::path step;
    std::size_t depth = 0;
    for (const fs::path& part : tree.Dir()) {
        step /= part;
        ancestors.push_back({std::string(depth * 2, ' ') + (depth == 0 ? "/" : part.string()),
                             step.string(), true});
        ++depth;
    }
    ASSERT_EQ(model.OpenRow() + 1, ancestors.size());
    for (std::size_t i = 0; i < ancestors.size(); ++i) {
        EXPECT_EQ(model.Folders()[i].Text, ancestors[i].Text);
        EXPECT_EQ(model.Folders()[i].Path, ancestors[i].Path);
        EXPECT_TRUE(model.Folders()[i].Open);
    }
    const std::string indent(depth * 2, ' ');
    EXPECT_EQ(SubfolderTexts(model), (Names{indent + "alpha", indent + "Beta", indent + "sub.ico"}));
    EXPECT_EQ(model.Folders().back().Path, tree.Path("sub.ico"));
    EXPECT_FALSE(model.Folders().back().Open);

    EXPECT_EQ(model.Files(), (Names{"a.ico", "b.ico", "C.ICO"}));
    EXPECT_EQ(model.CountText(), "ICO files in dir:  3");
}

TEST(DirDialogModel, PatternsDecideTheFilesAndTheCount) {
    CurrentDirGuard cwd;
    IconTree tree;
    const struct {
        const char* pattern;
        const char* shown;
        Names files;
        const char* count;
    } cases[] = {
        {"*.ico", "*.ico", {"a.ico", "b.ico", "C.ICO"}, "ICO files in dir:  3"},
        {"*.ICO", "*.ICO", {"a.ico", "b.ico", "C.ICO"}, "ICO files in dir:  3"},
        {"*.ani", "*.ani", {}, "ANI files in dir:  0"},
        {"*.txt;*.ico", "*.txt;*.ico", {"a.ico", "b.ico", "C.ICO", "note.txt"},
         "TXT;*.ICO files in dir:  4"},
        {"*.*", "*.*", {"a.ico", "b.ico", "C.ICO", "note.txt"}, ""},
        {"", "XYZ!@#$%^", {}, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pattern);
        test::ScriptedHost host;
        DirDialogModel model(host, c.pattern, false);
        EXPECT_EQ(model.PatternShown(), c.shown);
        ASSERT_TRUE(model.EnterFolder(tree.Path()));
        EXPECT_EQ(model.Files(), c.files);
        EXPECT_EQ(model.CountText(), c.count);
    }
}

TEST(DirDialogModel, PatternChangeFiltersAndAFolderChangeTakesTheDialogsPatternAgain) {
    CurrentDirGuard cwd;
    IconTree tree;
    Touch(tree.Dir() / "sub.ico" / "d.ico");
    test::ScriptedHost host;
    DirDialogModel model(host, "*.ico", true);
    ASSERT_TRUE(model.EnterFolder(tree.Path()));

    model.SetFilePattern("*.TXT");
    EXPECT_EQ(model.Files(), Names{"note.txt"});
    EXPECT_EQ(model.CountText(), "ICO files in dir:  3");  // counted when the folder was entered

    ASSERT_TRUE(model.EnterRow(model.Folders().size() - 1));
    EXPECT_EQ(model.Folder(), tree.Path("sub.ico"));
    EXPECT_EQ(fs::current_path(), tree.Dir() / "sub.ico");
    EXPECT_EQ(model.FilePattern(), "*.ico");
    EXPECT_EQ(model.Files(), Names{"d.ico"});
    EXPECT_EQ(model.CountText(), "ICO files in dir:  1");

    // The parent's row leads back up.
    ASSERT_TRUE(model.EnterRow(model.OpenRow() - 1));
    EXPECT_EQ(model.Folder(), tree.Path());
    EXPECT_FALSE(model.EnterRow(model.Folders().size()));
}

TEST(DirDialogModel, OkAsksOnlyWhenTheListIsEmptyAndThePatternIsLong) {
    CurrentDirGuard cwd;
    IconTree tree;
    const struct {
        const char* pattern;
        const char* folder;
        std::vector<MsgAnswer> answers;
        bool closes;
    } cases[] = {
        {"*.ico", "alpha", {MsgAnswer::No}, false},
        {"*.ico", "alpha", {MsgAnswer::Yes}, true},
        {"*.ico", "", {}, true},
        {"*.ani", "", {MsgAnswer::No}, false},
        {"", "alpha", {}, true},
        {"*.*", "alpha", {}, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.pattern) + " in " + c.folder);
        test::ScriptedHost host;
        for (MsgAnswer a : c.answers) host.Answer(a);
        DirDialogModel model(host, c.pattern, false);
        ASSERT_TRUE(model.EnterFolder(tree.Path(c.folder)));
        EXPECT_EQ(model.ConfirmOK(), c.closes);
        EXPECT_EQ(model.ChosenFolder(), tree.Path(c.folder));
        ASSERT_EQ(host.shown.size(), c.answers.size());
        if (!c.answers.empty()) {
            const std::string ext = std::string(c.pattern).substr(2);
            EXPECT_EQ(host.shown[0].text, "There is no " + ext +
                                              " files directly in selected folder.\r\n"
                                              "Proceed still?");
            EXPECT_EQ(host.shown[0].buttons, host::MsgButtons::YesNo);
            EXPECT_EQ(host.shown[0].title, "Vexlo");
        }
    }
    test::ScriptedHost host;
    DirDialogModel model(host, "*.ico", false);
    ASSERT_TRUE(model.EnterFolder(tree.Path()));
    model.Cancel();
    EXPECT_EQ(model.ChosenFolder(), "");
}

// Everything a refused folder change must leave as it was.
struct Snapshot {
    std::string folder, chosen, pattern;
    std::vector<std::string> rows, files;
    fs::path cwd;
    explicit Snapshot(const DirDialogModel& m)
        : folder(m.Folder()), chosen(m.ChosenFolder()), pattern(m.FilePattern()),
          files(m.Files()), cwd(fs::current_path()) {
        for (const FolderRow& r : m.Folders()) rows.push_back(r.Path);
    }
    bool operator==(const Snapshot&) const = default;
};

TEST(DirDialogModel, FoldersThatCannotBeEnteredChangeNothing) {
    CurrentDirGuard cwd;
    IconTree tree;
    fs::create_symlink("nowhere", tree.Dir() / "dangling");
    fs::create_symlink("self", tree.Dir() / "self");
    test::ScriptedHost host;
    DirDialogModel model(host, "*.ico", false);
    ASSERT_TRUE(model.EnterFolder(tree.Path()));
    model.SetFilePattern("*.txt");
    const Snapshot before(model);

    for (const std::string& bad :
         {std::string(), tree.Path("missing"), tree.Path("a.ico"), tree.Path("dangling"),
          tree.Path("self"), tree.Path("a.ico/x"), std::string("/dev/null")}) {
        SCOPED_TRACE(bad);
        EXPECT_FALSE(model.EnterFolder(bad));
        EXPECT_TRUE(Snapshot(model) == before);
    }
    // Links that lead nowhere or round in a loop are listed neither as folders nor as files.
    for (const FolderRow& row : model.Folders()) EXPECT_EQ(row.Path.find("self"), std::string::npos);
}

TEST(DirDialogModel, UnreadableOrUnsearchableFolderIsRefused) {
    CurrentDirGuard cwd;
    IconTree tree;
    const fs::path locked = tree.Dir() / "alpha";
    Touch(locked / "x.ico");
    test::ScriptedHost host;
    DirDialogModel model(host, "*.ico", false);
    ASSERT_TRUE(model.EnterFolder(tree.Path()));
    const Snapshot before(model);

    for (const fs::perms perms : {fs::perms::none, fs::perms::owner_exec, fs::perms::owner_read}) {
        fs::permissions(locked, perms);
        if (::access(locked.c_str(), R_OK | X_OK) == 0) {
            fs::permissions(locked, fs::perms::owner_all);
            GTEST_SKIP() << "permissions don't bind this user (root)";
        }
        EXPECT_FALSE(model.EnterFolder(locked.string()));
        EXPECT_TRUE(Snapshot(model) == before);
    }
    fs::permissions(locked, fs::perms::owner_all);
}

TEST(DirDialogModel, LinkLoopsAreFoldersThatCanBeEnteredStepByStep) {
    CurrentDirGuard cwd;
    IconTree tree;
    fs::create_directory_symlink(".", tree.Dir() / "loop");
    test::ScriptedHost host;
    DirDialogModel model(host, "*.ico", false);
    ASSERT_TRUE(model.EnterFolder(tree.Path()));
    const std::string indent(2 * (model.OpenRow() + 1), ' ');
    EXPECT_EQ(SubfolderTexts(model),
              (Names{indent + "alpha", indent + "Beta", indent + "loop", indent + "sub.ico"}));

    // Each step goes one level deeper by name and lists the same folder again.
    fs::path expected = tree.Dir();
    for (int i = 0; i < 20; ++i) {
        const std::size_t loopRow = model.OpenRow() + 3;
        ASSERT_LT(loopRow, model.Folders().size());
        ASSERT_TRUE(model.EnterRow(loopRow));
        expected /= "loop";
        EXPECT_EQ(model.Folder(), expected.string());
        EXPECT_EQ(model.Files(), (Names{"a.ico", "b.ico", "C.ICO"}));
    }
    // ".." goes up the path as listed, not from where the links lead.
    ASSERT_TRUE(model.EnterFolder(".."));
    EXPECT_EQ(model.Folder(), expected.parent_path().string());
}

TEST(DirDialogModel, NamesThatAreNotUtf8KeepTheirBytes) {
    CurrentDirGuard cwd;
    IconTree tree;
    const std::string badFile = "\xff\xfe.ico";
    const std::string badFolder = "f\xc3(";
    Touch(tree.Dir() / badFile);
    fs::create_directory(tree.Dir() / badFolder);
    test::ScriptedHost host;
    DirDialogModel model(host, "*.ico", false);
    ASSERT_TRUE(model.EnterFolder(tree.Path()));
    EXPECT_EQ(model.Files(), (Names{"a.ico", "b.ico", "C.ICO", badFile}));

    std::size_t row = model.OpenRow() + 1;
    while (row < model.Folders().size() && model.Folders()[row].Path != tree.Path(badFolder)) ++row;
    ASSERT_LT(row, model.Folders().size());
    ASSERT_TRUE(model.EnterRow(row));
    EXPECT_EQ(model.Folder(), tree.Path(badFolder));
    EXPECT_EQ(fs::current_path(), tree.Dir() / badFolder);
    EXPECT_EQ(model.Folders()[model.OpenRow()].Text.substr(2 * model.OpenRow()), badFolder);
}

TEST(DirDialogModel, PathsAreMadeAbsoluteAndCleanAndLoadFallsBack) {
    CurrentDirGuard cwd;
    IconTree tree;
    test::ScriptedHost host;
    // Before a folder is open, a relative path starts from the current directory; after,
    // from the open folder.
    fs::current_path(tree.Dir() / "alpha");
    DirDialogModel model(host, "", false);
    ASSERT_TRUE(model.EnterFolder(".."));
    EXPECT_EQ(model.Folder(), tree.Path());
    const struct {
        std::string typed;
        std::string folder;
    } cases[] = {
        {"./sub.ico/", tree.Path("sub.ico")},
        {"../Beta", tree.Path("Beta")},
        {tree.Path() + "//Beta/../sub.ico/.", tree.Path("sub.ico")},
        {"/", "/"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        ASSERT_TRUE(model.EnterFolder(c.typed));
        EXPECT_EQ(model.Folder(), c.folder);
        EXPECT_EQ(fs::current_path(), fs::path(c.folder));
    }
    EXPECT_EQ(model.OpenRow(), 0u);
    EXPECT_EQ(model.Folders()[0].Text, "/");

    // A start folder that can't be entered gives way to the current directory.
    fs::current_path(tree.Dir());
    DirDialogModel loaded(host, "", false);
    ASSERT_TRUE(loaded.Load(tree.Path("missing")));
    EXPECT_EQ(loaded.Folder(), tree.Path());
}

}  // namespace
}  // namespace vexlo::utilities
