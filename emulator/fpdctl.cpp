// The emulator's console client: one command, its output on stdout. Exit status 0, 1 with a reason on stderr,
// 2 when no emulator answers.
#include "emulator/host/defaultstate.h"
#include "fpd_hostlink.h"
#include "fpd_hostsocket.h"

#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

namespace
{
constexpr int failedStatus = 1;
constexpr int noEmulatorStatus = 2;

std::string quoted(const std::string &text)
{
    std::string result = "\"";
    for (char c : text) {
        if (c == '"' || c == '\\')
            result += '\\';
        result += c == '\n' ? ' ' : c;
    }
    return result + '"';
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
    size_t end;
    while ((end = rest.find('\n')) == std::string::npos) {
        char buffer[65536];
        const ssize_t size = recv(descriptor, buffer, sizeof buffer, 0);
        if (size <= 0)
            return false;
        rest.append(buffer, size_t(size));
    }
    line = rest.substr(0, end);
    rest.erase(0, end + 1);
    return true;
}

/// Prints the answer to one request; the exit status.
int printAnswer(int descriptor)
{
    for (std::string line; readLine(descriptor, line);) {
        if (line == "ok")
            return EXIT_SUCCESS;
        if (line.rfind("error ", 0) == 0) {
            std::cerr << line.substr(6) << std::endl;
            return failedStatus;
        }
        std::cout << line.substr(1) << std::endl;
    }
    std::cerr << "the emulator went away" << std::endl;
    return noEmulatorStatus;
}
} // namespace

int main(int argc, char *argv[])
{
    std::vector<std::string> words(argv + 1, argv + argc);
    std::string state = defaultState();
    if (words.size() >= 2 && words[0] == "--state") {
        state = words[1];
        words.erase(words.begin(), words.begin() + 2);
    }
    if (words.empty() || words[0] == "--state") {
        std::cerr << "usage: fpdctl [--state DIR] COMMAND ... (fpdctl help lists the commands)" << std::endl;
        return failedStatus;
    }
    const int descriptor = hostlink::connectSocket(state + hostlink::consoleSocket, SOCK_STREAM);
    if (descriptor < 0) {
        std::cerr << "no emulator answers in " << state << std::endl;
        return noEmulatorStatus;
    }
    std::string request;
    for (const std::string &word : words)
        request += quoted(word) + ' ';
    if (!sendAll(descriptor, "cd " + quoted(currentFolder()) + '\n'))
        return noEmulatorStatus;
    const int status = printAnswer(descriptor);
    if (status != EXIT_SUCCESS)
        return status;
    return sendAll(descriptor, request + '\n') ? printAnswer(descriptor) : noEmulatorStatus;
}
