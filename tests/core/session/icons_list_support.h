#pragma once
// What the Icons List flow tests share: a scripted host with the desktop's icons of the
// test's own, a library of icons that the test makes up, and a session on them with a folder.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "core/files/ico_write.h"
#include "core/session/session.h"
#include "core/session/session_icons_list.h"
#include "support/scripted_host.h"
#include "support/test_folder.h"

namespace vexlo::test {

using surface::Color;
using surface::Surface;

// The shell's icon of a path, as the test sets it: image over white and mask, by path and size.
class ListHost : public ScriptedHost {
public:
    struct ShellIcon {
        Surface Image;
        Surface Mask;
    };
    std::map<std::pair<std::string, bool>, ShellIcon> shellIcons;  // (path, small)
    int shellRequests = 0;
    int listRefreshes = 0;

    bool GetShellIcon(const std::string& path, bool small, Surface& image, Surface& mask) override {
        ++shellRequests;
        const auto it = shellIcons.find({path, small});
        if (it == shellIcons.end()) return false;
        image = it->second.Image;
        mask = it->second.Mask;
        return true;
    }
    void RefreshIconsList() override { ++listRefreshes; }
};

// A library of `count` groups; group g's large picture is 32x32 of the color 0x10 * (g + 1)
// in red with its left column transparent, its small one 16x16 of the same color, opaque.
class FakeLibrary : public session::LibraryIconSource {
public:
    int count = 0;
    std::set<int> broken;  // groups that fail
    int pictures = 0;      // IconOfGroup calls

    static Color ColorOf(int g) { return static_cast<Color>((0x10 * (g + 1)) & 0xFF); }

    int CountIconGroups(const std::string&) override { return count; }
    bool IconOfGroup(const std::string&, int group, bool large, session::LibraryIcon& out) override {
        ++pictures;
        if (group < 0 || group >= count || broken.count(group)) return false;
        const int side = large ? 32 : 16;
        out.Image = Surface(side, side, 0);
        out.Mask = Surface(side, side, 0);
        out.Image.Fill(ColorOf(group));
        out.Mask.Fill(0);
        if (large)
            for (int y = 0; y < side; ++y) {
                out.Image.SetPixelV(0, y, 0);
                out.Mask.SetPixelV(0, y, 0xFFFFFF);
            }
        return true;
    }
};

// An icon file of side x side in one color, opaque.
inline void WriteSolidIcon(const std::string& path, int side, Color c) {
    Surface image(side, side, 0), mask(side, side, 0);
    image.Fill(c);
    mask.Fill(0);
    ASSERT_TRUE(files::WriteIconFile(image, mask, path, {}));
}

class IconsListFlowTest : public ::testing::Test {
protected:
    void SetUp() override {
        s.Load(1024, 768);
        session::Directories dirs;
        dirs.ProgramDir = "/opt/vexlo";
        dirs.LastFolder = "/start";
        dirs.DesktopFolder = folder.Path("Desktop");
        s.SetDirectories(dirs);
        s.RunFirstActivation("", nullptr);
        s.Extraction().SetLibraryIcons(&library);
    }
    session::IconsListFlows Flows() { return s.Extraction(); }
    const session::IconsListSession& List() { return s.Extraction().State(); }
    const Surface& Picture() { return List().Picture(); }
    std::string Path(const std::string& name) const { return folder.Path(name); }
    std::string LastMessage() const { return host.shown.empty() ? "" : host.shown.back().text; }

    TestFolder folder{"vexlo_icons_list"};
    ListHost host;
    session::Session s{host};
    FakeLibrary library;
};

}  // namespace vexlo::test
