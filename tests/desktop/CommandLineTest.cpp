#include "desktop/CommandLine.h"

#include <QTest>
#include <optional>
#include <string>
#include <vector>

namespace caudalera::commandline {

namespace {

using Arguments = std::vector<std::string>;
using Answerer = std::optional<Answer> (*)(const Arguments&);

/// The refusal, or nothing.
QString refusal(Answerer answer, const Arguments& arguments) {
    const auto given = answer(arguments);
    return given && given->status == 2 ? QString::fromStdString(given->text) : QString();
}

} // namespace

class CommandLineTest : public QObject {
    Q_OBJECT

private slots:
    void withoutArgumentsBothStart() {
        QVERIFY(!answerOfProgram({}));
        QVERIFY(!answerOfViewer({}));
    }

    void bothTellTheVersion() {
        const Answer version{"Caudalera " CAUDALERA_VERSION "\n", 0};
        QVERIFY(answerOfProgram({"--version"}) == version);
        QVERIFY(answerOfViewer({"--version"}) == version);
    }

    void theHelpNamesWhatThereIs() {
        const auto program = answerOfProgram({"--help"});
        QVERIFY(program && program->status == 0);
        const QString text = QString::fromStdString(program->text);
        QVERIFY(text.startsWith("Uso: caudalera\n     caudalera --version | --help\n\n"));
        for (const char* const word : {"CAUDALERA_DECIMAL", "CAUDALERA_DIR", "share/caudalera",
                                       "C:\\Caudalera\\", "samples tiene series de ejemplo.\n"})
            QVERIFY2(text.contains(QLatin1String(word)), word);

        const auto viewer = answerOfViewer({"--help"});
        QVERIFY(viewer && viewer->status == 0);
        QVERIFY(viewer->text.starts_with("Uso: caudalera-ayuda [ARCHIVO[::/PÁGINA]]\n"));
    }

    void theHelpFitsATerminal() {
        for (const auto& answer : {answerOfProgram({"--help"}), answerOfViewer({"--help"})}) {
            for (const QString& line : QString::fromStdString(answer->text).split('\n'))
                QVERIFY2(line.size() <= 80, qPrintable(line));
        }
    }

    void theProgramTakesNothingElse_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("refused");
        QTest::newRow("file") << QStringList{"serie.X"} << "serie.X";
        QTest::newRow("toolkit's") << QStringList{"-platform", "offscreen"} << "-platform";
        QTest::newRow("short") << QStringList{"-h"} << "-h";
        QTest::newRow("case") << QStringList{"--Version"} << "--Version";
        QTest::newRow("no value") << QStringList{"--version=1"} << "--version=1";
        QTest::newRow("two") << QStringList{"--version", "--help"} << "--version";
        QTest::newRow("twice") << QStringList{"--help", "--help"} << "--help";
        QTest::newRow("empty") << QStringList{""} << "";
    }
    void theProgramTakesNothingElse() {
        QFETCH(QStringList, arguments);
        QFETCH(QString, refused);
        Arguments given;
        for (const QString& argument : arguments)
            given.push_back(argument.toStdString());
        QCOMPARE(
            refusal(answerOfProgram, given),
            QStringLiteral("caudalera: no se admite «%1»; vea caudalera --help\n").arg(refused));
    }

    void theViewerTakesOneFile() {
        QVERIFY(!answerOfViewer({"Ayuda.chm::/frmDisNormal.htm"}));
        QCOMPARE(refusal(answerOfViewer, {"Ayuda.chm", "otra.chm"}),
                 QStringLiteral("caudalera-ayuda: no se admite «otra.chm»; vea caudalera-ayuda "
                                "--help\n"));
        QCOMPARE(refusal(answerOfViewer, {"-style", "Ayuda.chm"}),
                 QStringLiteral("caudalera-ayuda: no se admite «-style»; vea caudalera-ayuda "
                                "--help\n"));
        QCOMPARE(refusal(answerOfViewer, {"Ayuda.chm", "--version"}),
                 QStringLiteral("caudalera-ayuda: no se admite «--version»; vea caudalera-ayuda "
                                "--help\n"));
    }

    void argumentsStandBehindTheName() {
        std::string name = "caudalera";
        std::string first = "a";
        std::string second = "b";
        char* argv[] = {name.data(), first.data(), second.data(), nullptr};
        QCOMPARE(argumentsOf(3, argv), (Arguments{"a", "b"}));
        QCOMPARE(argumentsOf(1, argv), Arguments());
        QCOMPARE(argumentsOf(0, argv + 3), Arguments());
    }
};

} // namespace caudalera::commandline

QTEST_APPLESS_MAIN(caudalera::commandline::CommandLineTest)
#include "CommandLineTest.moc"
