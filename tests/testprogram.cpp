#include "tests/testprogram.h"

#include <QApplication>
#include <QFileInfo>
#include <cstdio>
#include <memory>
#include <vector>

#if defined(__SANITIZE_ADDRESS__)
/// Some tests look for leaks at their end; what the offscreen platform leaves behind is Qt's own.
extern "C" const char *__lsan_default_suppressions()
{
    return "leak:libqoffscreen\n";
}
#endif

namespace testprogram
{
static std::vector<Test> &tests()
{
    static std::vector<Test> all;
    return all;
}

int add(const char *file, Application application, QObject *(*make)(), void (*prepare)())
{
    tests().push_back({QFileInfo(file).baseName(), application, make, prepare});
    return int(tests().size());
}

static int run(const Test &test, int argc, char *argv[])
{
    if (test.prepare)
        test.prepare();
    std::unique_ptr<QCoreApplication> application;
    if (test.application == Application::Gui) {
        QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
        application = std::make_unique<QApplication>(argc, argv);
    } else if (test.application == Application::Core) {
        application = std::make_unique<QCoreApplication>(argc, argv);
    }
    const std::unique_ptr<QObject> object(test.make());
    return QTest::qExec(object.get(), argc, argv);
}
} // namespace testprogram

int main(int argc, char *argv[])
{
    const QString name = QString::fromLocal8Bit(argc > 1 ? argv[1] : "");
    for (const testprogram::Test &test : testprogram::tests()) {
        if (test.name != name)
            continue;
        argv[1] = argv[0];
        return testprogram::run(test, argc - 1, argv + 1);
    }
    std::fprintf(stderr, "usage: %s TEST [OPTIONS OF QTEST]; its tests:\n", argv[0]);
    for (const testprogram::Test &test : testprogram::tests())
        std::fprintf(stderr, "  %s\n", qPrintable(test.name));
    return 2;
}
