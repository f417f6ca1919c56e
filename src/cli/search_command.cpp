// search: the icons of every EXE file in a folder (and its subfolders) written as icon files,
// by core's ExeSearch, the walk the editor's "Search & extract from exe files" runs.
#include <unistd.h>

#include <chrono>
#include <filesystem>

#include "cli/cli_support.h"
#include "core/extract/exe_search.h"

namespace vexlo::cli {

namespace {

constexpr std::size_t kProgressFileChars = 50;

struct SearchArgs {
    extract::ExeSearchOptions Options;
    bool Ok = false;
};

SearchArgs ParseSearchArgs(const std::vector<std::string>& args, std::string& err) {
    SearchArgs a;
    std::vector<std::string> paths;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& s = args[i];
        if (s == "--recursive") {
            a.Options.IncludeSub = true;
        } else if (s == "--small") {
            a.Options.SmallIcons = true;
        } else if (s == "--max") {
            std::size_t n = 0;
            if (i + 1 >= args.size() || !ParseIndex(args[i + 1], n) || n < extract::kMinSearchIcons ||
                n > extract::kMaxSearchIcons) {
                Fail(err, "--max takes a number from 1 to 10000");
                return a;
            }
            a.Options.MaxIcons = static_cast<int>(n);
            ++i;
        } else if (!s.empty() && s[0] == '-') {
            Fail(err, "unknown option " + s);
            return a;
        } else {
            paths.push_back(s);
        }
    }
    if (paths.size() != 2) {
        Fail(err, "search takes DIR OUTDIR [--recursive] [--max N] [--small] (see 'vexlo-cli search --help')");
        return a;
    }
    a.Options.SearchIn = paths[0];
    a.Options.SaveTo = paths[1];
    a.Ok = true;
    return a;
}

// The progress line on a terminal, rewritten in place at most ten times a second.
class ProgressLine {
public:
    ProgressLine() : m_on(::isatty(STDERR_FILENO) == 1) {}
    void Show(const extract::ExeSearch& search) {
        if (!m_on) return;
        const auto now = std::chrono::steady_clock::now();
        if (now - m_last < std::chrono::milliseconds(100)) return;
        m_last = now;
        std::string file = search.CurrentFile();
        if (file.size() > kProgressFileChars) file = "..." + file.substr(file.size() - kProgressFileChars + 3);
        Put("\r\033[K" + std::to_string(search.FilesScanned()) + " files, " + std::to_string(search.Written()) +
            " icons  " + file);
    }
    void Clear() {
        if (m_on) Put("\r\033[K");
    }

private:
    static void Put(const std::string& text) {
        if (::write(STDERR_FILENO, text.data(), text.size()) < 0) return;
    }
    bool m_on;
    std::chrono::steady_clock::time_point m_last{};
};

}  // namespace

int Search(const std::vector<std::string>& args, std::string& out, std::string& err) {
    const SearchArgs a = ParseSearchArgs(args, err);
    if (!a.Ok) return 1;
    std::error_code ec;
    if (!std::filesystem::is_directory(a.Options.SaveTo, ec)) return Fail(err, a.Options.SaveTo + ": not a folder");
    extract::ExeSearch search;
    if (!search.Start(a.Options, ec)) return Fail(err, a.Options.SearchIn + ": " + ec.message());
    ProgressLine progress;
    while (search.Step()) progress.Show(search);
    progress.Clear();
    out += std::to_string(search.FilesScanned()) + " files scanned, " + std::to_string(search.Written()) +
           " icons written, " + std::to_string(search.FilesSkipped()) + " files skipped" +
           (search.LimitReached() ? " (the limit of " + std::to_string(a.Options.MaxIcons) + " icons reached)" : "") +
           "\n";
    if (search.WriteFailures() > 0)
        return Fail(err, std::to_string(search.WriteFailures()) + " icons could not be written: " +
                             search.LastWriteError());
    return 0;
}

}  // namespace vexlo::cli
