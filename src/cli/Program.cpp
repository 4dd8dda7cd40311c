// SPDX-License-Identifier: MIT
#include "cli/Program.h"

#include <fcntl.h>
#include <langinfo.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sysexits.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <clocale>
#include <cstddef>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string_view>
#include <system_error>

#include "cli/ExportFile.h"
#include "cli/Figures.h"
#include "cli/JsonReport.h"
#include "cli/NcduExport.h"
#include "cli/Output.h"
#include "cli/ProgressLine.h"
#include "cli/Survey.h"
#include "cli/TableReport.h"
#include "cli/VisibleText.h"

namespace zelk::cli {

namespace {

constexpr std::string_view help = R"(
Surveys folders: what they hold, what is large, what of it can be had again and,
if Zelk keeps a record of the same folders, what has grown since. It removes
nothing and remembers nothing.

  --top N      rows of each list of the table (10)
  --json       one JSON object instead of the table
  --ncdu FILE  writes the tree for ncdu -f too; "-" is standard output, which
               then has nothing else
  --help       prints this
  --version    prints the version

ZELK_WORKERS sets the number of threads. Exit status: 0 also if some folders
could not be read, 64 for wrong arguments, 66 if a root cannot be read, 74 if
something cannot be written, 128 and the number of a signal that ended it.
)";

void complain(const std::string& sentence) {
    writeAll(STDERR_FILENO, "zelk-survey: " + sentence + "\n", [] { return false; });
}

std::string reasonOf(int error) {
    return std::generic_category().message(error);
}

Output standardOutput(EndRequest* end) {
    return Output([end](std::string_view piece) {
        return writeAll(STDOUT_FILENO, piece, [end] { return end != nullptr && end->signal() != 0; });
    });
}

/// Hands on what is left, and asks the system whether it could keep all of it: a network volume tells that only when
/// the file is closed. Complains if something is missing.
int finish(Output& output, const EndRequest* end) {
    int error = output.finish();
    if (error == 0) {
        const int copy = ::dup(STDOUT_FILENO);
        if (copy < 0 || (::close(copy) != 0 && errno != EINTR)) error = errno;
    }
    if (error == 0) return EX_OK;
    if (end != nullptr && end->signal() != 0) return 128 + end->signal();
    complain("Standard output cannot be written: " + reasonOf(error) + ".");
    return EX_IOERR;
}

std::size_t terminalColumns() {
    constexpr std::size_t usual = 80;
    winsize size{};
    return ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : usual;
}

/// Only a terminal that can erase a line has a line of progress.
bool showsProgress() {
    const char* const terminal = std::getenv("TERM");
    return ::isatty(STDERR_FILENO) != 0 && terminal != nullptr && *terminal != '\0' &&
           std::string_view(terminal) != "dumb";
}

std::optional<Survey> surveyed(const Storage& storage, const std::vector<std::string>& roots, EndRequest& end) {
    if (!showsProgress()) return runSurvey(storage, roots, end, [](const update::Progress&) {});
    const auto print = [](std::string_view text) { writeAll(STDERR_FILENO, text, [] { return false; }); };
    ProgressLine line(storage.clock, print, terminalColumns);
    return runSurvey(storage, roots, end, [&](const update::Progress& progress) { line.show(progress); });
}

std::string workingDirectory() {
    const std::unique_ptr<char, decltype(&std::free)> folder(::getcwd(nullptr, 0), &std::free);
    return folder ? folder.get() : ".";
}

/// Writes the export into its file.
int writeExport(const std::string& path, const Survey& found, EndRequest& end) {
    ExportFile file(path, [&end] { return end.signal() != 0; });
    Output output([&file](std::string_view piece) { return file.write(piece); });
    writeNcduExport(output, found, ZELK_VERSION);
    int error = output.finish();
    if (error == 0 && end.signal() == 0) error = file.commit();
    if (end.signal() != 0) return 128 + end.signal();
    if (error == 0) return EX_OK;
    complain(visibleText(path) + " cannot be written: " + reasonOf(error) + ".");
    return EX_IOERR;
}

}  // namespace

void prepareProcess() {
    constexpr std::array wrongWay{O_WRONLY, O_RDONLY, O_RDONLY};
    for (std::size_t stream = 0; stream < wrongWay.size(); ++stream)
        if (::fcntl(static_cast<int>(stream), F_GETFD) < 0)
            static_cast<void>(::open("/dev/null", wrongWay[stream]));  // takes the lowest number, which is this one
    // These are failures of a call.
    ::signal(SIGPIPE, SIG_IGN);
    ::signal(SIGXFSZ, SIG_IGN);
    if (std::setlocale(LC_CTYPE, "") != nullptr && std::string_view(::nl_langinfo(CODESET)) == "UTF-8") return;
    if (std::setlocale(LC_CTYPE, "C.UTF-8") == nullptr) std::setlocale(LC_CTYPE, "UTF-8");  // as macOS calls it
}

int answer(const Arguments& arguments) {
    if (!arguments.refusal.empty()) {
        complain(arguments.refusal + "\n" + std::string(usage));
        return EX_USAGE;
    }
    Output output = standardOutput(nullptr);
    if (arguments.action == Arguments::Action::version) {
        output.write("zelk-survey " ZELK_VERSION "\n");
    } else {
        output.write(usage);
        output.write("\n");
        output.write(help);
    }
    return finish(output, nullptr);
}

int survey(const Storage& storage, const Arguments& arguments, EndRequest& end) {
    const bool toFile = arguments.ncdu && !arguments.exportsToOutput();
    if (toFile && ExportFile::isStandardOutput(*arguments.ncdu)) {
        complain(visibleText(*arguments.ncdu) + " is where standard output goes; --ncdu - writes the export there.");
        return EX_USAGE;
    }
    if (toFile) {
        // Not only after a survey that may have taken long.
        if (const int error = ExportFile::whyNot(*arguments.ncdu); error != 0) {
            complain(visibleText(*arguments.ncdu) + " cannot be written: " + reasonOf(error) + ".");
            return EX_IOERR;
        }
    }
    const std::vector<std::string> roots = namedRoots(arguments.roots, workingDirectory());
    if (const std::optional<std::string> reason = whyNot(storage, roots)) {
        complain(*reason);
        return EX_NOINPUT;
    }
    const std::optional<Survey> found = surveyed(storage, roots, end);
    if (!found) return 128 + end.signal();
    if (found->tree->children().size() != roots.size()) {
        complain("A folder that was to be surveyed is gone.");
        return EX_NOINPUT;
    }
    if (toFile) {
        if (const int status = writeExport(*arguments.ncdu, *found, end); status != EX_OK) return status;
    }
    Output output = standardOutput(&end);
    if (arguments.exportsToOutput())
        writeNcduExport(output, *found, ZELK_VERSION);
    else if (arguments.json)
        writeJson(output, *found, ZELK_VERSION);
    else
        writeTable(output, *found, arguments.top);
    const int status = finish(output, &end);
    const bool isTold = !arguments.json && !arguments.exportsToOutput();
    if (status == EX_OK && !isTold && found->stats.blockedPaths > 0)
        complain(counted(found->stats.blockedPaths, "folder") + " could not be read.");
    return status;
}

}  // namespace zelk::cli
