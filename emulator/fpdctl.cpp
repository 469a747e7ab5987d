// The emulator's console client: one command, its output on stdout. Without Qt, since scripts call it in
// loops.
#include "emulator/console/wordlist.h"
#include "fpd_hostlink.h"
#include "fpd_hostsocket.h"
#include "fpd_hoststate.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <sstream>
#include <strings.h>
#include <sys/time.h>
#include <thread>
#include <vector>

namespace
{
enum Status { done = 0, refused = 1, noEmulator = 2, wrongUsage = 3, timedOut = 4 };

constexpr double liveness = 10;  ///< seconds until an emulator that is alive has answered anything
constexpr double usualWait = 30; ///< seconds of "wait ready"
constexpr auto connectPause = std::chrono::milliseconds(50);

constexpr const char *usageText =
    "usage: fpdctl [--state DIR] [--timeout SECONDS] WORD [ARGUMENT...]\n"
    "\n"
    "  --state DIR        the emulator's state folder; else $FPD_STATE, else the user's own\n"
    "  --timeout SECONDS  ends with status 4 when the answer takes longer\n"
    "  --help, --version  also behind a word: how that word is used\n"
    "  --                 what follows is no option\n"
    "\n"
    "Exit status: 0 done, 1 refused, 2 no emulator answers, 3 wrong usage, 4 timed out.\n";

struct Call {
    std::string state = defaultState();
    double timeout = 0; ///< seconds; 0 for none
    bool help = false, version = false;
    std::vector<std::string> words;
};

Status fail(Status status, const std::string &reason)
{
    std::cout.flush();
    std::cerr << "fpdctl: " << reason << std::endl;
    return status;
}

bool isSame(const std::string &text, const char *word)
{
    return strcasecmp(text.c_str(), word) == 0;
}

/// The seconds of a text; 0 if they are none.
double toSeconds(const std::string &text)
{
    char *end = nullptr;
    const double seconds = strtod(text.c_str(), &end);
    return *end == 0 && std::isfinite(seconds) && seconds > 0 ? seconds : 0;
}

/// Sorts own options from words; empty, or what is wrong.
std::string readCall(std::vector<std::string> arguments, Call &call)
{
    // Behind '=', or the next argument.
    const auto takeValue = [&arguments](const std::string &name, size_t &at, std::string &value) {
        if (arguments[at].rfind(name + '=', 0) == 0)
            value = arguments[at].substr(name.size() + 1);
        else if (at + 1 < arguments.size())
            value = arguments[++at];
        return !value.empty();
    };
    for (size_t at = 0; at < arguments.size(); ++at) {
        const std::string option = arguments[at].substr(0, arguments[at].find('='));
        std::string value;
        if (arguments[at] == "--") {
            call.words.insert(call.words.end(), arguments.begin() + long(at) + 1, arguments.end());
            break;
        } else if (option == "--state") {
            if (!takeValue(option, at, value))
                return "--state needs a folder";
            call.state = value;
        } else if (option == "--timeout") {
            if (!takeValue(option, at, value) || (call.timeout = toSeconds(value)) == 0)
                return "--timeout needs a number of seconds";
        } else if (arguments[at] == "--help" || arguments[at] == "-h") {
            call.help = true;
        } else if (arguments[at] == "--version") {
            call.version = true;
        } else if (call.words.empty() && arguments[at].rfind('-', 0) == 0) {
            return "no such option: " + arguments[at];
        } else {
            call.words.push_back(arguments[at]);
        }
    }
    return call.words.empty() && !call.help && !call.version ? "a word is missing (fpdctl help lists them)"
                                                             : "";
}

Status printHelp(const std::vector<std::string> &words)
{
    if (words.empty()) {
        std::cout << usageText << '\n' << helpText();
        return done;
    }
    const WordText *word = findWord([&words](const char *name) { return isSame(words[0], name); });
    if (!word)
        return fail(wrongUsage, "no such word: " + words[0] + " (fpdctl help lists them)");
    std::cout << helpText(*word);
    return done;
}

/// From now on; 0 takes it back.
void limitTime(double seconds)
{
    itimerval limit{};
    limit.it_value.tv_sec = time_t(seconds);
    limit.it_value.tv_usec = suseconds_t((seconds - double(limit.it_value.tv_sec)) * 1e6);
    setitimer(ITIMER_REAL, &limit, nullptr);
}

void endLate(int)
{
    constexpr char text[] = "fpdctl: the emulator does not answer in time\n";
    (void)!write(STDERR_FILENO, text, sizeof text - 1);
    _exit(timedOut);
}

std::string quoted(const std::vector<std::string> &words)
{
    std::ostringstream line;
    for (std::string word : words) {
        for (char &c : word)
            c = c == '\n' ? ' ' : c;
        line << std::quoted(word) << ' ';
    }
    return line.str() + '\n';
}

std::string currentFolder()
{
    char *folder = getcwd(nullptr, 0);
    const std::string result = folder ? folder : "/";
    free(folder);
    return result;
}

bool sendAll(int descriptor, const std::string &text)
{
    return send(descriptor, text.data(), text.size(), MSG_NOSIGNAL) == ssize_t(text.size());
}

/// One line without its end; false when the emulator is gone.
bool readLine(int descriptor, std::string &line)
{
    static std::string rest;
    static size_t begin = 0;
    size_t end;
    while ((end = rest.find('\n', begin)) == std::string::npos) {
        std::cout.flush(); // nothing more has come so far
        rest.erase(0, begin);
        begin = 0;
        char buffer[65536];
        const ssize_t size = recv(descriptor, buffer, sizeof buffer, 0);
        if (size <= 0)
            return false;
        rest.append(buffer, size_t(size));
    }
    line = rest.substr(begin, end - begin);
    begin = end + 1;
    return true;
}

Status failAs(const std::string &reason)
{
    return fail(reason.rfind("usage: ", 0) == 0      ? wrongUsage
                : reason.rfind("time-out: ", 0) == 0 ? timedOut
                                                     : refused,
                reason);
}

void printBytes(const std::string &hex)
{
    for (size_t at = 0; at + 1 < hex.size(); at += 2)
        std::cout << char(std::stoi(hex.substr(at, 2), nullptr, 16));
}

/// Prints the answer to one request: its lines, or as bytes what they give in hex.
Status printAnswer(int descriptor, bool asBytes)
{
    for (std::string line; readLine(descriptor, line);) {
        if (line == "ok")
            return std::cout.flush() ? done : fail(refused, "the output cannot be written");
        if (line.rfind("error ", 0) == 0)
            return failAs(line.substr(6));
        if (asBytes)
            printBytes(line.substr(1));
        else
            std::cout << line.substr(1) << '\n';
    }
    return fail(noEmulator, "the emulator went away");
}

/// How long an emulator may take to come up; nobody but "wait ready" waits for it.
double patienceFor(const std::vector<std::string> &words)
{
    if (words.size() < 2 || !isSame(words[0], "wait") || !isSame(words[1], "ready"))
        return 0;
    return words.size() == 2 ? usualWait : toSeconds(words[2]);
}

/// A descriptor, -1 if no emulator answers. What of its patience is left is what the emulator is to wait.
int connectTo(const std::string &state, std::vector<std::string> &words)
{
    using Clock = std::chrono::steady_clock;
    const double patience = patienceFor(words);
    const auto start = Clock::now();
    const auto left = [&] { return patience - std::chrono::duration<double>(Clock::now() - start).count(); };
    int descriptor;
    while ((descriptor = hostlink::connectSocket(state + hostlink::consoleSocket, SOCK_STREAM)) < 0 &&
           left() > 0)
        std::this_thread::sleep_for(connectPause);
    if (patience > 0) {
        words.resize(std::max<size_t>(words.size(), 3));
        words[2] = std::to_string(std::max(0.0, left()));
    }
    return descriptor;
}

Status run(Call &call)
{
    const bool own = call.timeout > 0;
    signal(SIGALRM, endLate);
    limitTime(own ? call.timeout : patienceFor(call.words) + liveness);
    const int descriptor = connectTo(call.state, call.words);
    if (descriptor < 0)
        return fail(noEmulator, "no emulator answers in " + call.state);
    if (!sendAll(descriptor, quoted({"cd", currentFolder()})))
        return fail(noEmulator, "the emulator went away");
    const Status moved = printAnswer(descriptor, false);
    if (moved != done)
        return moved;
    if (!own)
        limitTime(0); // it is alive: now it may take its time
    const bool asBytes = call.words.size() >= 2 && isSame(call.words[0], "screen") && call.words[1] == "-";
    if (!sendAll(descriptor, quoted(call.words)))
        return fail(noEmulator, "the emulator went away");
    return printAnswer(descriptor, asBytes);
}
} // namespace

int main(int argc, char *argv[])
{
    std::ios::sync_with_stdio(false);
    Call call;
    const std::string fault = readCall(std::vector<std::string>(argv + 1, argv + argc), call);
    if (!fault.empty())
        return fail(wrongUsage, fault);
    if (call.version) {
        std::cout << "fpdctl " FPD_VERSION "\n";
        return done;
    }
    if (!call.words.empty() && isSame(call.words[0], "help")) {
        call.help = true;
        call.words.erase(call.words.begin());
    }
    return call.help ? printHelp(call.words) : run(call);
}
