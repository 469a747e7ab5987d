// What is shipped for scripts: the Python module and the story of the brightness, in Python and in the shell.
#include "tests/system/systemtest.h"
#include "tests/testprogram.h"

#include <QFileInfo>
#include <QRegularExpression>

class TestScripts : public SystemTest
{
    Q_OBJECT
protected:
    void begin() override
    {
        // Beside the state folder, which takes no other files.
        const QString name = QFileInfo(m_panel.statePath()).path() + "/link";
        m_panel.setOptions({"--web", "--bind", "0.0.0.0"});
        // The link is said on standard output, which a shell keeps for us.
        QVERIFY(m_panel.powerDevice({"sh", "-c", "exec \"$@\" > " + name, "sh"}));
        QVERIFY(m_panel.start() && m_panel.ask({"wait", "settled", "60"}).ok);
        QFile file(name);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const auto link = QRegularExpression("panel: (http://\\S+#token=\\S+)").match(file.readAll());
        QVERIFY(link.hasMatch());
        m_link = link.captured(1);
    }

private slots:
    void scriptsEnd_data()
    {
        // command: LINK, STATE: of the panel that runs
        const DataRows<QStringList, QString> row{"command", "said"};
        const QString begin = "import frontpanel; panel = frontpanel.connect('LINK'); ";
        row("story in Python", {"python3", "brightness.py"}, "^63 %\n$");
        row("story in the shell", {"sh", "-e", "brightness.sh"}, "^$");
        row("by the link", {"python3", "-c", begin + "print(panel.store('get', 'ScreenBrightness'))"},
            "^\\['63'\\]\n$");
        row("texts by the link", {"python3", "-c", begin + "print(panel.shows('63%'), panel.png()[1:4])"},
            "^True b'PNG'\n$");
        row("in vain", {"python3", "-c", begin + "panel.wait_text('nosuch', 0.1)"},
            "frontpanel.TimedOut: .*in vain");
        row("wrong usage", {"python3", "-c", begin + "panel.key('nosuch')"},
            "frontpanel.WrongUsage: .*no such key");
        row("files by the link", {"python3", "-c", begin + "panel.cd('/')"},
            "frontpanel.Refused: files are named at the machine");
        row("by the state folder",
            {"python3", "-c",
             "import frontpanel; print(frontpanel.connect('STATE').read('panel', 'status'))"},
            "'running': True");
    }

    void scriptsEnd()
    {
        auto [command, said] = fetched<QStringList, QString>({"command", "said"});
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("FPD_STATE", m_panel.statePath());
        environment.insert("PYTHONDONTWRITEBYTECODE", "1");
        environment.insert("PATH",
                           QCoreApplication::applicationDirPath() + "/../bin:" + environment.value("PATH"));
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(qEnvironmentVariable("FPD_SOURCES") + "/tools/script");
        process.setProcessChannelMode(QProcess::MergedChannels);
        command.replaceInStrings("LINK", m_link).replaceInStrings("STATE", m_panel.statePath());
        process.start(command.takeFirst(), command);
        QVERIFY(process.waitForFinished(120000));
        const QString output = QString::fromUtf8(process.readAll());
        QVERIFY2(output.contains(QRegularExpression(said)), qPrintable(output));
        QCOMPARE(process.exitCode() == 0, !said.startsWith("frontpanel"));
    }

private:
    QString m_link;
};

FPD_TEST(TestScripts)
#include "tst_scripts.moc"
