// The profile format as text: what reads back, what a change touches, and that a text read
// and written back unchanged is the same text, byte for byte.
#include <gtest/gtest.h>

#include "core/utilities/profile_text.h"

namespace vexlo::test {
namespace {

using utilities::ProfileText;

constexpr const char* kEveryKey =
    "[File History]\r\n1.=/home/u/a b.ico\r\n2.=\r\n3.=/home/u/c.ico\r\n"
    "[Options]\r\nGridLines=0\r\nDisplayMask=-1\r\nPromptToSave=0\r\nRemindIfBMP=-1\r\n"
    "[Last Folder]\r\nLastFolder=/home/u/icons\r\n"
    "[Screen Pos]\r\nLeft=1500\r\nTop=750\r\n";

TEST(ProfileText, TextsComeBackByteForByte) {
    const char* texts[] = {
        kEveryKey,
        "",
        "; a comment\n\n[A]\nx = 1 \n\n[B]\r\ny=2",  // mixed line ends, no last line end
        "key before any section\r\n[A]\r\n",
        "\x01\x02\xff[binary\r\n=\r\n[]\r\n",
    };
    for (const char* text : texts) EXPECT_EQ(ProfileText(text).Text(), text);
}

TEST(ProfileText, ReadsNamesWithoutCaseAndValuesWithoutBlanksOrQuotes) {
    const ProfileText p("[ Options ]\r\n GridLines = 2 \r\nq=\"a b\"\r\nbare\r\n[File History]\r\n1.=x\r\n");
    EXPECT_EQ(p.Get("options", "gridlines"), "2");
    EXPECT_EQ(p.Get("Options", "q"), "a b");
    EXPECT_EQ(p.Get("Options", "bare"), "");
    EXPECT_EQ(p.Get("File History", "1."), "x");
    EXPECT_EQ(p.Get("File History", "1"), std::nullopt);
    EXPECT_EQ(p.Get("Options", "1."), std::nullopt);  // keys belong to their own section
    EXPECT_EQ(p.Get("Missing", "x"), std::nullopt);
}

TEST(ProfileText, ChangesTouchOnlyTheirLine) {
    struct Case {
        const char* before;
        const char* section;
        const char* key;
        const char* value;  // null removes the key
        const char* after;
    };
    const Case cases[] = {
        {"[A]\r\nx=1\r\ny=2\r\n", "a", "X", "9", "[A]\r\nx=9\r\ny=2\r\n"},  // replaced as written
        {"[A]\r\nx=1\r\n\r\n[B]\r\n", "A", "z", "3", "[A]\r\nx=1\r\nz=3\r\n\r\n[B]\r\n"},
        {"[A]\nx=1", "B", "k", "v", "[A]\nx=1\r\n[B]\r\nk=v\r\n"},
        {"", "File History", "1.", "/p q", "[File History]\r\n1.=/p q\r\n"},
        {"[A]\r\nx=1\r\ny=2\r\n", "A", "x", nullptr, "[A]\r\ny=2\r\n"},
        {"[A]\r\ny=2\r\n", "A", "x", nullptr, "[A]\r\ny=2\r\n"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.before);
        ProfileText p(c.before);
        if (c.value)
            p.Set(c.section, c.key, c.value);
        else
            p.Remove(c.section, c.key);
        EXPECT_EQ(p.Text(), c.after);
    }
}

}  // namespace
}  // namespace vexlo::test
