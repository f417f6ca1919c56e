// The enable rules of the menus and the toolbar in the states that matter.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "core/session/session.h"
#include "support/scripted_host.h"

namespace vexlo::test {
namespace {

using session::EnableRule;
using session::MenuTree;
using session::RuleContext;
using session::RuleHolds;

EnableRule RuleOf(std::string_view name) {
    for (const auto& top : MenuTree())
        for (const auto& item : top.Items)
            if (item.Name == name) return item.Rule;
    ADD_FAILURE() << "no item " << name;
    return EnableRule::Always;
}

RuleContext IconOfSize(int sizeCode) {
    RuleContext c;
    c.InArea = true;
    c.UndoCount = 1;  // a freshly shown icon has one entry
    c.SizeCode = sizeCode;
    c.ColorsPanelVisible = true;
    return c;
}

TEST(MenuRules, ItemsBySizeOfTheIcon) {
    struct Row {
        const char* item;
        bool at16, at32, at48;
    };
    const Row rows[] = {
        {"mnuEffectsExpand", true, false, false},
        {"mnuEffectsShrink", false, true, false},
        {"mnuEffectsGradientUnpaintedArea", false, true, true},
        {"mnuFileSaveAsCursor", false, true, false},
        {"mnuFileSaveICO", true, true, true},
        {"mnuEditSub(0)", false, false, false},  // undo count 1: nothing to undo yet
        {"mnuEditSub(2)", false, false, false},
        {"mnuEditSub(4)", false, false, false},  // no Region
        {"mnuEnquiryCurrent(2)", false, false, false},  // no hotspot
    };
    for (const Row& r : rows) {
        EXPECT_EQ(RuleHolds(RuleOf(r.item), IconOfSize(1)), r.at16) << r.item;
        EXPECT_EQ(RuleHolds(RuleOf(r.item), IconOfSize(2)), r.at32) << r.item;
        EXPECT_EQ(RuleHolds(RuleOf(r.item), IconOfSize(3)), r.at48) << r.item;
    }
}

TEST(MenuRules, UndoNeedsTwoEntriesAndUndoAllThree) {
    RuleContext c = IconOfSize(2);
    for (int count : {1, 2, 3}) {
        c.UndoCount = count;
        EXPECT_EQ(RuleHolds(RuleOf("mnuEditSub(0)"), c), count >= 2);
        EXPECT_EQ(RuleHolds(RuleOf("mnuEditSub(1)"), c), count >= 3);
        EXPECT_EQ(RuleHolds(session::ToolbarButtons()[6].Rule, c), count >= 2);
    }
}

TEST(MenuRules, TheTwoMultiIconSavesAreNeverEnabledTogether) {
    for (bool inArea : {false, true})
        for (bool multi : {false, true}) {
            RuleContext c = IconOfSize(2);
            c.InArea = inArea;
            c.MultiIconFile = multi;
            const bool replace = RuleHolds(RuleOf("mnuFileSaveMultiIconReplace"), c);
            const bool add = RuleHolds(RuleOf("mnuFileSaveMultiIconAddTo"), c);
            EXPECT_FALSE(replace && add);
            EXPECT_EQ(replace || add, inArea);
        }
}

TEST(MenuRules, WithNoIconOnlyAlwaysItemsAndPasteButtonsDuringAListSession) {
    RuleContext list;  // a list session: nothing in the area, the list frame up
    list.IconsListVisible = true;
    for (const auto& top : MenuTree())
        for (const auto& item : top.Items)
            if (!item.Name.empty() && item.Rule != EnableRule::Always &&
                item.Rule != EnableRule::FileHistory) {
                EXPECT_FALSE(RuleHolds(item.Rule, list)) << item.Name;
            }
    const auto& buttons = session::ToolbarButtons();
    for (int k = 0; k < session::kToolbarCommands; ++k) {
        const bool expected = buttons[static_cast<std::size_t>(k)].Rule == EnableRule::Always ||
                              k == 11 || k == 12;
        EXPECT_EQ(RuleHolds(buttons[static_cast<std::size_t>(k)].Rule, list), expected) << k;
    }
}

TEST(MenuTree, ThirteenMenusInOrderWithUniqueItemNames) {
    std::vector<std::string_view> names;
    for (const auto& top : MenuTree()) names.push_back(top.Caption);
    const std::vector<std::string_view> expected = {
        "&File", "&Toolbox", "&Edit", "&Rotate", "Effe&cts", "&Brush", "&Palette",
        "E&nquiry", "&Options", "E&xtract", "Ani&mation", "&Alpha", "&Help"};
    EXPECT_EQ(names, expected);
    std::set<std::string_view> seen;
    for (const auto& top : MenuTree())
        for (const auto& item : top.Items)
            if (!item.Name.empty()) {
                EXPECT_TRUE(seen.insert(item.Name).second) << item.Name;
            }
    // Every toolbar button runs an item of the tree.
    for (const auto& b : session::ToolbarButtons()) EXPECT_TRUE(seen.count(b.Runs)) << b.Runs;
}

TEST(Toolbar, RefreshWritesByTheTableAndLeavesTheFixedButtons) {
    ScriptedHost host;
    session::Session s(host);
    s.Load(1024, 768);
    s.RefreshToolbar();  // no icon yet: the fixed buttons keep the state they were built with
    for (int k : {0, 1, 2, 3, 22, 24}) EXPECT_TRUE(s.Form().ToolbarEnabled[static_cast<std::size_t>(k)]) << k;
    for (int k : {4, 5, 10, 20, 25}) EXPECT_FALSE(s.Form().ToolbarEnabled[static_cast<std::size_t>(k)]) << k;
    s.FileNew(1);  // 16x16
    for (int k : {4, 5, 10, 13, 21, 23, 25}) EXPECT_TRUE(s.Form().ToolbarEnabled[static_cast<std::size_t>(k)]) << k;
    EXPECT_FALSE(s.Form().ToolbarEnabled[6]);   // undo count below 2
    EXPECT_FALSE(s.Form().ToolbarEnabled[20]);  // no gradient on 16x16
    s.FileNew(0);
    EXPECT_TRUE(s.Form().ToolbarEnabled[20]);
}

TEST(Toolbar, ButtonRunsItsMenuItem) {
    ScriptedHost host;
    session::Session s(host);
    s.Load(1024, 768);
    s.ClickToolbar(1);  // New 16x16
    EXPECT_EQ(s.Current().SizeCode, 1);
    EXPECT_TRUE(s.InArea());
    s.ClickToolbar(26);  // a separator runs nothing
    s.ClickToolbar(-1);
}

}  // namespace
}  // namespace vexlo::test
