// vexlo-cli: the command-line companion of the editor.
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <string>
#include <vector>

#include "cli/cli_commands.h"

namespace {

// Writes all of text to the descriptor; false on a failed write.
bool WriteAll(int fd, const std::string& text) {
    std::size_t done = 0;
    while (done < text.size()) {
        const ssize_t n = ::write(fd, text.data() + done, text.size() - done);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        done += static_cast<std::size_t>(n);
    }
    return true;
}

}  // namespace

int main(int argc, char* argv[]) {
    const std::vector<std::string> args(argv + 1, argv + argc);
    std::string out, err;
    int code = vexlo::cli::RunCli(args, out, err);
    if (!WriteAll(STDOUT_FILENO, out)) {
        err += "vexlo-cli: cannot write the output: " + std::string(std::strerror(errno)) + "\n";
        code = 1;
    }
    WriteAll(STDERR_FILENO, err);
    return code;
}
