#include "tests/fuzz/fuzztarget.h"

#include <QApplication>
#include <QFileInfo>
#include <QLoggingCategory>
#include <cstring>
#include <dlfcn.h>
#include <string>
#include <vector>

extern "C" size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t maxSize);

namespace
{
std::vector<fuzz::Target> &targets()
{
    static std::vector<fuzz::Target> all;
    return all;
}

const fuzz::Target *current = nullptr;

QByteArray bytesOf(const uint8_t *data, size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), int(size));
}
} // namespace

int fuzz::add(const Target &target)
{
    targets().push_back(target);
    return int(targets().size());
}

QByteArray fuzz::mutateBytes(const QByteArray &bytes, int longest)
{
    QByteArray changed = bytes.left(longest);
    const int size = changed.size();
    changed.resize(longest);
    changed.resize(
        int(LLVMFuzzerMutate(reinterpret_cast<uint8_t *>(changed.data()), size_t(size), size_t(longest))));
    return changed;
}

namespace
{
/// What the product asks of its board's tools, and not what libFuzzer runs of itself.
bool isForBoard(const char *command)
{
    return std::strncmp(command, "PATH=", 5) == 0;
}

template <class Function> Function *real(Function *, const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}
} // namespace

// A process for each question to the board would be all that is measured: there is one answer.
extern "C" FILE *popen(const char *command, const char *mode)
{
    static char answer[] = "1.0.1\n";
    return isForBoard(command) ? fmemopen(answer, sizeof answer - 1, "r")
                               : real(popen, "popen")(command, mode);
}
extern "C" int pclose(FILE *stream)
{
    return fileno(stream) < 0 ? fclose(stream) : real(pclose, "pclose")(stream);
}
extern "C" int system(const char *command)
{
    return isForBoard(command) ? 0 : real(system, "system")(command);
}

/// Short stacks of what was allocated, and not much kept of what was freed: half of the time goes there.
extern "C" const char *__asan_default_options()
{
    return "malloc_context_size=3:quarantine_size_mb=16:detect_leaks=0";
}

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    const QString name = QFileInfo(QString::fromLocal8Bit((*argv)[0])).fileName().section('_', 1);
    for (const fuzz::Target &target : targets())
        if (name == QLatin1String(target.name))
            current = &target;
    if (!current) {
        std::fprintf(stderr, "to be called as fuzz_NAME; the names:\n");
        for (const fuzz::Target &target : targets())
            std::fprintf(stderr, "  %s\n", target.name);
        std::exit(2);
    }
    // As if it had been said behind all that was.
    static std::vector<char *> arguments(*argv, *argv + *argc);
    static std::string longest = "-max_len=" + std::to_string(current->longest);
    arguments.insert(arguments.begin() + *argc, {longest.data(), nullptr});
    *argc += 1;
    *argv = arguments.data();
    QLoggingCategory::setFilterRules("*=false");
    if (current->setUp) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        new QApplication(*argc, *argv);
        current->setUp();
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    current->feed(bytesOf(data, size));
    return 0;
}

/// Every other time the input keeps its form, where the target knows one.
extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t maxSize, unsigned int seed)
{
    std::mt19937 random(seed);
    if (!current->mutate || random() % 2)
        return LLVMFuzzerMutate(data, size, maxSize);
    const QByteArray changed = current->mutate(bytesOf(data, size), random).left(int(maxSize));
    std::memcpy(data, changed.constData(), size_t(changed.size()));
    return size_t(changed.size());
}
