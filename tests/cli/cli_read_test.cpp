// info and export read what each entry of an icon or cursor file really holds, and refuse,
// with one line naming the file, the entry and why, what they cannot read whole.
#include <fstream>

#include "cli/cli_test_support.h"
#include "support/test_folder.h"

namespace vexlo::test {
namespace {

// An image of header d: a zero color table of tableEntries, then rowBytes of color and mask
// rows (zero: every pixel painted with color 0).
std::vector<std::uint8_t> DibImage(const Dib& d, std::size_t tableEntries, std::size_t rowBytes) {
    std::vector<std::uint8_t> b = DibHeaderBytes(d);
    b.resize(b.size() + tableEntries * 4 + rowBytes, 0);
    return b;
}

// A good 16x16 1-bit entry, with change applied to its header and the table and rows given.
Entry DibEntry(const std::function<void(Dib&)>& change = {}, std::size_t table = 2, std::size_t rows = 128) {
    Dib d;
    if (change) change(d);
    Entry e;
    e.Image = DibImage(d, table, rows);
    return e;
}

template <typename F>
Entry Changed(Entry e, F f) {
    f(e);
    return e;
}

class CliReadTest : public ::testing::Test {
protected:
    std::string Write(const std::string& name, const std::vector<std::uint8_t>& bytes) {
        std::ofstream(folder.Path(name), std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        return folder.Path(name);
    }
    // Exports image index of file and compares every pixel with f (only alpha where f's is 0).
    void ExpectExport(const std::string& file, int index, int side, const std::function<Rgba(int, int)>& f) {
        const std::string png = folder.Path("export.png");
        const CliResult r = Cli({"export", file, std::to_string(index), png});
        ASSERT_EQ(r.code, 0) << r.err;
        const cli::RgbaImage image = ReadPngFile(png);
        ASSERT_EQ(image.Width, side);
        ASSERT_EQ(image.Height, side);
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x) {
                const Rgba want = f(x, y), got = PixelAt(image, x, y);
                if (want[3] == 0)
                    ASSERT_EQ(got[3], 0) << file << " #" << index << " at " << x << "," << y;
                else
                    ASSERT_EQ(got, want) << file << " #" << index << " at " << x << "," << y;
            }
    }
    TestFolder folder{"vexlo_cli_read"};
};

TEST_F(CliReadTest, EntriesThatCannotBeReadWholeAreRefused) {
    const Entry good = DibEntry();
    const std::size_t size = good.Image.size();  // 176
    std::vector<std::uint8_t> badIndex = DibEntry([](Dib& d) { d.Bits = 4, d.ClrUsed = 2; }, 2, 128 + 64).Image;
    badIndex[40 + 8] = 0x50;  // bottom row, first pixel: color 5
    const struct {
        const char* name;
        std::vector<Entry> entries;
        std::uint16_t type;
        const char* why;
    } cases[] = {
        {"bits3", {DibEntry([](Dib& d) { d.Bits = 3; })}, 1, "image 0: a bit count of 3 (1, 4, 8, 24 and 32"},
        {"bits64", {DibEntry([](Dib& d) { d.Bits = 64; })}, 1, "image 0: a bit count of 64 "},
        {"rle8", {DibEntry([](Dib& d) { d.Bits = 8, d.Compression = 1; })}, 1, "image 0: RLE8 compression"},
        {"fields", {DibEntry([](Dib& d) { d.Bits = 32, d.Compression = 3; })}, 1,
         "image 0: bit fields compression"},
        {"header12", {DibEntry([](Dib& d) { d.Size = 12; })}, 1, "image 0: an image header of 12 bytes"},
        {"header64", {DibEntry([](Dib& d) { d.Size = 64; })}, 1, "image 0: an image header of 64 bytes"},
        {"planes2", {DibEntry([](Dib& d) { d.Planes = 2; })}, 1, "image 0: 2 planes"},
        {"width0", {DibEntry([](Dib& d) { d.Width = 0; })}, 1, "image 0: the image header's width 0 differs"},
        {"hugeheight", {DibEntry([](Dib& d) { d.Height = 0x7FFFFFFF; })}, 1, "height 2147483647 is not twice"},
        {"overlap", {Changed(good, [](Entry& e) { e.Offset = 6; })}, 1, "overlaps the header and directory"},
        {"pastend", {Changed(good, [&](Entry& e) { e.BytesInRes = static_cast<std::int64_t>(size) + 1; })}, 1,
         "image 0: its 177 bytes at offset 22 run past the end of the file (198 bytes)"},
        {"zerobytes", {Changed(good, [](Entry& e) { e.BytesInRes = 0; })}, 1, "image 0: an entry of 0 bytes"},
        {"rowscut", {DibEntry({}, 2, 10)}, 1, "image 0: cut short inside its color rows (10 of 64 bytes)"},
        {"maskcut", {DibEntry({}, 2, 74)}, 1, "image 0: cut short inside its mask rows (10 of 64 bytes)"},
        {"24nomask", {DibEntry([](Dib& d) { d.Bits = 24; }, 0, 768)}, 1, "cut short inside its mask rows (0 of"},
        {"tablecut", {DibEntry([](Dib& d) { d.Bits = 8; }, 100, 0)}, 1, "cut short inside its color table of 256"},
        {"bigtable", {DibEntry([](Dib& d) { d.ClrUsed = 3; })}, 1, "image 0: a color table of 3 entries"},
        {"index", {Entry{16, 16, 1, 4, badIndex}}, 1, "image 0: pixel 0,15 uses color 5 of a table of 2"},
        {"hotspot", {Changed(good, [](Entry& e) { e.Planes = 16; })}, 2, "image 0: its hotspot 16,1 lies outside"},
        {"second", {good, DibEntry([](Dib& d) { d.Bits = 3; })}, 1, "image 1: a bit count of 3"},
    };
    for (const auto& c : cases) {
        const std::string path = Write(std::string(c.name) + ".ico", IconFileBytes(c.entries, c.type));
        const CliResult info = Cli({"info", path});
        EXPECT_EQ(info.code, 1) << c.name;
        EXPECT_EQ(info.out, "") << c.name;
        EXPECT_EQ(info.err.rfind("vexlo-cli: " + path + ": image ", 0), 0u) << info.err;
        EXPECT_NE(info.err.find(c.why), std::string::npos) << c.name << ": " << info.err;
        EXPECT_EQ(info.err.find('\n'), info.err.size() - 1) << info.err;
        const std::string last = std::to_string(c.entries.size() - 1);
        const CliResult out = Cli({"export", path, last, folder.Path("o.png")});
        EXPECT_EQ(out.code, 1) << c.name;
        EXPECT_NE(out.err.find(c.why), std::string::npos) << c.name << ": " << out.err;
    }
}

TEST_F(CliReadTest, FilesThatAreNoIconOrCursorFileAreRefused) {
    std::vector<std::uint8_t> twoEntriesOneThere = IconFileBytes({DibEntry()});
    twoEntriesOneThere[4] = 2;
    twoEntriesOneThere.resize(6 + 16 + 8);
    const struct {
        const char* name;
        std::vector<std::uint8_t> bytes;
        const char* why;
    } cases[] = {
        {"empty", {}, "not an icon or cursor file"},
        {"text", {'n', 'o', ' ', 'i', 'c', 'o', 'n'}, "not an icon or cursor file"},
        {"type3", {0, 0, 3, 0, 1, 0}, "not an icon or cursor file"},
        {"ani", {'R', 'I', 'F', 'F', 4, 0, 0, 0, 'A', 'C', 'O', 'N'}, "no anih chunk (the animated cursor's header)"},
        {"exe", {'M', 'Z', 0x90, 0}, "a program or library file (MZ); icon and cursor files are read"},
        {"noimages", {0, 0, 1, 0, 0, 0}, "an icon file of no images"},
        {"dircut", twoEntriesOneThere, "its directory of 2 entries runs past the end of the file (30 bytes)"},
    };
    for (const auto& c : cases) {
        const std::string path = Write(c.name, c.bytes);
        for (const std::vector<std::string>& args :
             {std::vector<std::string>{"info", path}, {"export", path, "0", folder.Path("o.png")}}) {
            const CliResult r = Cli(args);
            EXPECT_EQ(r.code, 1) << c.name;
            EXPECT_EQ(r.err, "vexlo-cli: " + path + ": " + c.why + "\n") << c.name;
        }
    }
}

// The checks refuse only what is wrong: every known header size and depth reads.
TEST_F(CliReadTest, KnownHeaderSizesAndDepthsRead) {
    const struct {
        Dib dib;
        std::size_t table, rows;
        const char* line;
    } cases[] = {
        {{}, 2, 128, "0 16x16 1 2 176 22 ok\n"},
        {{.Size = 56}, 2, 128, "0 16x16 1 2 192 22 ok\n"},
        {{.Size = 124}, 2, 128, "0 16x16 1 2 260 22 ok\n"},
        {{.Bits = 4}, 16, 128 + 64, "0 16x16 4 16 296 22 ok\n"},
        {{.Bits = 8, .ClrUsed = 20}, 20, 256 + 64, "0 16x16 8 20 440 22 ok\n"},
        {{.Bits = 32}, 0, 1024 + 64, "0 16x16 32 -1 1128 22 ok\n"},
        {{.Width = 20, .Height = 40, .Bits = 24}, 0, 60 * 20 + 4 * 20, "0 20x20 24 -1 1320 22 ok\n"},
    };
    for (const auto& c : cases) {
        Entry e{c.dib.Width, c.dib.Height / 2, 1, c.dib.Bits, DibImage(c.dib, c.table, c.rows)};
        const std::string path = Write("ok.ico", IconFileBytes({e}));
        const CliResult r = Cli({"info", path});
        EXPECT_EQ(r.code, 0) << r.err;
        EXPECT_EQ(r.out, c.line);
    }
}

TEST_F(CliReadTest, PngEntriesOfAnySizeDecodeAsPng) {
    const std::string file = Fixture("cli", "icotool_png_entries.ico");
    const CliResult info = Cli({"info", file});
    ASSERT_EQ(info.code, 0) << info.err;
    EXPECT_EQ(info.out,
              "0 16x16 8 -1 340 70 ok png\n1 32x32 4 16 222 410 ok png\n"
              "2 48x48 48 -1 4785 632 ok png\n3 256x256 1 2 141 5417 ok png\n");
    ExpectExport(file, 0, 16, [](int x, int y) {
        const int v = (x * 16 + y) & 255;
        return Rgba{v, v, v, 255};
    });
    ExpectExport(file, 1, 32, [](int x, int y) {
        const int i = (x + y) % 16;
        return Rgba{i * 16, 255 - i * 16, i * 7, i == 0 ? 0 : i == 1 ? 128 : 255};
    });
    ExpectExport(file, 2, 48, [](int x, int y) { return Rgba{x * 5, y * 5, 77, 255}; });
    ExpectExport(file, 3, 256, [](int x, int y) {
        const int v = (x / 32 + y / 32) % 2 ? 255 : 0;
        return Rgba{v, v, v, 255};
    });
}

TEST_F(CliReadTest, BrokenPngEntriesAreRefused) {
    std::vector<std::uint8_t> bytes;
    ASSERT_EQ(files::ReadWholeFile(Fixture("cli", "icotool_png_entries.ico"), bytes), files::FileReadStatus::Ok);
    std::vector<std::uint8_t> crc = bytes, size = bytes;
    crc[70 + 60] ^= 0xFF;  // inside the first PNG's image data
    size[6] = 32;          // the directory's width of that PNG
    const std::string crcPath = Write("crc.ico", crc), sizePath = Write("size.ico", size);
    EXPECT_EQ(Cli({"info", crcPath}).err.rfind("vexlo-cli: " + crcPath + ": image 0: PNG: ", 0), 0u);
    EXPECT_EQ(Cli({"info", sizePath}).err,
              "vexlo-cli: " + sizePath + ": image 0: the PNG is 16x16, the directory says 32x16\n");
    EXPECT_EQ(Cli({"export", sizePath, "1", folder.Path("o.png")}).code, 0);  // the other entries still export
}

TEST_F(CliReadTest, ThirtyTwoBitAlphaAndMasks) {
    // Pillow leaves out the mask rows of a 32-bit image: the alpha stands alone.
    const std::string nomask = Fixture("ico", "pillow_32_32bit_nomask.ico");
    EXPECT_EQ(Cli({"info", nomask}).out, "0 32x32 32 -1 4136 22 ok\n");
    ExpectExport(nomask, 0, 32, [](int x, int y) { return Rgba{x * 8, y * 8, 128, 255}; });

    // Alpha bytes that are all 0 carry nothing: the mask tells; any other alpha wins over it.
    for (const int alpha : {0, 77}) {
        Dib d;
        d.Bits = 32;
        std::vector<std::uint8_t> image = DibHeaderBytes(d);
        for (int i = 0; i < 256; ++i) image.insert(image.end(), {10, 20, 30, static_cast<std::uint8_t>(alpha)});
        for (int row = 0; row < 16; ++row)  // the file's last row is the top one: (0, 0) is masked
            image.insert(image.end(), {row == 15 ? std::uint8_t{0x80} : std::uint8_t{0}, 0, 0, 0});
        const std::string path = Write("a32.ico", IconFileBytes({Entry{16, 16, 1, 32, image}}));
        ExpectExport(path, 0, 16, [alpha](int x, int y) {
            return Rgba{30, 20, 10, alpha ? alpha : (x == 0 && y == 0 ? 0 : 255)};
        });
    }
}

TEST_F(CliReadTest, EveryImageOfAMultiImageCursorExports) {
    const std::string file = Fixture("cli", "icotool_cursor_3.cur");
    const CliResult info = Cli({"info", file});
    ASSERT_EQ(info.code, 0) << info.err;
    EXPECT_EQ(info.out,
              "0 32x32 4 16 744 54 ok hotspot 5,9\n1 32x32 8 256 2216 798 ok hotspot 5,9\n"
              "2 32x32 32 -1 4264 3014 ok hotspot 5,9\n");
    static const Rgba kFour[] = {{255, 0, 0, 255}, {0, 128, 0, 255}, {0, 0, 255, 255}, {255, 255, 0, 255}};
    ExpectExport(file, 0, 32, [](int x, int y) { return y == 0 ? Rgba{} : kFour[(x / 8 + y / 8) % 4]; });
    ExpectExport(file, 1, 32, [](int x, int y) {
        return x == 3 && y == 4 ? Rgba{} : Rgba{(x / 2) * 16, (y / 4) * 32, 77, 255};
    });
    ExpectExport(file, 2, 32, [](int x, int y) { return Rgba{x * 8, y * 8, 40, (x * 8 + y) % 256}; });
    EXPECT_EQ(Cli({"export", file, "3", folder.Path("o.png")}).err,
              "vexlo-cli: " + file + " has 3 image(s); no image 3\n");
}

}  // namespace
}  // namespace vexlo::test

namespace vexlo::test {
namespace {

TEST_F(CliReadTest, AlphaPrintsTheStoredBytesTopRowFirst) {
    // Alpha of file row r (the bottom one first) and column c: 16 r + c; all 0 stays 0.
    for (const bool zero : {false, true}) {
        Dib d;
        d.Bits = 32;
        std::vector<std::uint8_t> image = DibHeaderBytes(d);
        for (int r = 0; r < 16; ++r)
            for (int c = 0; c < 16; ++c)
                image.insert(image.end(), {1, 2, 3, static_cast<std::uint8_t>(zero ? 0 : 16 * r + c)});
        image.resize(image.size() + 16 * 4, 0);  // mask rows
        const std::string path = Write("a32.ico", IconFileBytes({Entry{16, 16, 1, 32, image}}));
        const CliResult r = Cli({"alpha", path, "0"});
        ASSERT_EQ(r.code, 0) << r.err;
        std::string want;
        static const char kHex[] = "0123456789abcdef";
        for (int y = 0; y < 16; ++y)
            for (int x = 0; x < 16; ++x) {
                const int v = zero ? 0 : 16 * (15 - y) + x;
                want += kHex[v >> 4];
                want += kHex[v & 15];
                want += x == 15 ? '\n' : ' ';
            }
        EXPECT_EQ(r.out, want);
    }
    // An image without alpha bytes, and an index past the directory, are refused.
    const std::string oneBit = Write("a1.ico", IconFileBytes({DibEntry()}));
    const CliResult none = Cli({"alpha", oneBit, "0"});
    EXPECT_EQ(none.code, 1);
    EXPECT_NE(none.err.find("stores no alpha values (1 bits per pixel)"), std::string::npos) << none.err;
    EXPECT_EQ(Cli({"alpha", oneBit, "1"}).code, 1);
}

}  // namespace
}  // namespace vexlo::test
