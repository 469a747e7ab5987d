#include "emulator/host/shelltools.h"

#include "fpd_hostlink.h"

#include <QFile>
#include <QSaveFile>

namespace
{
struct Tool {
    const char *name;
    /// Shell text for what a healthy device answers.
    const char *healthy;
};

constexpr Tool tools[] = {
    {"fpga", "case \"$*\" in\n"
             "-v) echo 'FPGA version is 2.0.11' ;;\n"
             "'r v 0x101f 1') echo '0x101f: 0x01' ;;\n"
             "esac\n"},
    {"stm32", "case \"$*\" in\n"
              "-v) echo 'mcu version is 20230601' ;;\n"
              "esac\n"},
};

// The board's tail knows an option -l and prints the last line; here it is an error.
constexpr const char *tailScript = "#!/bin/sh\n"
                                   "[ \"$1\" = -l ] && { shift; set -- -n 1 \"$@\"; }\n"
                                   "PATH=${PATH#*:}\n"
                                   "exec tail \"$@\"\n";

/// Empty, or what went wrong.
QString writeScript(const QString &file, const QByteArray &text)
{
    QSaveFile script(file);
    if (script.open(QIODevice::WriteOnly) && script.write(text) == text.size() &&
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner) && script.commit())
        return QString();
    return "cannot write " + file + ": " + script.errorString();
}
} // namespace

QString ShellTools::install() const
{
    const QString folder = m_stateFolder + hostlink::toolFolder + '/';
    QString fault = writeScript(folder + "tail", tailScript);
    for (const Tool &tool : tools) {
        if (!fault.isEmpty())
            break;
        fault = writeScript(folder + tool.name,
                            QByteArray("#!/bin/sh\n"
                                       "answer=$(dirname \"$0\")/../fault/tool-") +
                                tool.name + "\n[ -e \"$answer\" ] && exec cat \"$answer\"\n" + tool.healthy);
    }
    return fault;
}

bool ShellTools::setAnswer(const QString &tool, const QString &text) const
{
    if (!isKnown(tool))
        return false;
    QSaveFile file(answerFile(tool));
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(text.toUtf8());
    if (!text.isEmpty())
        file.write("\n");
    return file.commit();
}

bool ShellTools::clearAnswer(const QString &tool) const
{
    if (!isKnown(tool))
        return false;
    QFile::remove(answerFile(tool));
    return true;
}

bool ShellTools::isKnown(const QString &name) const
{
    for (const Tool &tool : tools) {
        if (name == QLatin1String(tool.name))
            return true;
    }
    return false;
}

QString ShellTools::answerFile(const QString &tool) const
{
    return m_stateFolder + "/fault/tool-" + tool;
}
