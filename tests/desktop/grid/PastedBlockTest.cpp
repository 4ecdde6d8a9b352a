#include "shell/worksheet/PastedBlock.h"

#include <QObject>
#include <QTest>

namespace caudalera {

class PastedBlockTest : public QObject {
    Q_OBJECT

private slots:
    void blocksAreReadAsNumbersOrRefused_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("read");
        QTest::addColumn<QString>("refusal");
        const auto refused = [](int row, int column, const char* cell) {
            return QStringLiteral("No se pegó nada: el dato de la fila %1, columna %2 no es un "
                                  "número: «%3»")
                .arg(row)
                .arg(column)
                .arg(QString::fromUtf8(cell));
        };
        QTest::newRow("points") << "1.5\t-2\n.5\t+3.\n"
                                << "1.5|-2/.5|3."
                                << "";
        QTest::newRow("last empty line") << "1\r\n2\r\n"
                                         << "1/2"
                                         << "";
        QTest::newRow("blanks around") << "  1.5 \t 2 "
                                       << "1.5|2"
                                       << "";
        QTest::newRow("exponents") << "1e3\n2.5E-4\n1D2"
                                   << "1e3/2.5E-4/1D2"
                                   << "";
        QTest::newRow("commas") << "1,5\n2,25"
                                << "1.5/2.25"
                                << "";
        QTest::newRow("thousands") << "1.234,5\n1.234.567\n12"
                                   << "1234.5/1234567/12"
                                   << "";
        QTest::newRow("negative with comma") << "-1.234,5"
                                             << "-1234.5"
                                             << "";
        // Without any comma a point is the decimal one.
        QTest::newRow("only points") << "1.234\n2.500"
                                     << "1.234/2.500"
                                     << "";
        QTest::newRow("nothing") << ""
                                 << ""
                                 << "";
        QTest::newRow("word") << "1\t2\n3\t4\n5\tabc"
                              << "" << refused(3, 2, "abc");
        QTest::newRow("comma and point") << "1,5\n2.5"
                                         << "" << refused(1, 1, "1,5");
        QTest::newRow("commas and a word") << "1,5\n2,25\nabc"
                                           << "" << refused(3, 1, "abc");
        QTest::newRow("commas and one point") << "1,5\n2,25\n2.5"
                                              << "" << refused(3, 1, "2.5");
        QTest::newRow("points and one comma") << "1.5\n2.25\n2,5"
                                              << "" << refused(3, 1, "2,5");
        QTest::newRow("groups of two") << "1.23,5"
                                       << "" << refused(1, 1, "1.23,5");
        QTest::newRow("group without head") << ".123,5"
                                            << "" << refused(1, 1, ".123,5");
        QTest::newRow("comma for thousands") << "1,234.5"
                                             << "" << refused(1, 1, "1,234.5");
        QTest::newRow("number with a unit") << "12 m"
                                            << "" << refused(1, 1, "12 m");
        QTest::newRow("empty cell") << "1\t\n2\t3"
                                    << "" << refused(1, 2, "");
        QTest::newRow("missing cell") << "1\t2\n3"
                                      << "" << refused(2, 2, "");
        QTest::newRow("empty line between") << "1\n\n2"
                                            << "" << refused(2, 1, "");
        QTest::newRow("sign alone") << "-"
                                    << "" << refused(1, 1, "-");
        QTest::newRow("point alone") << "."
                                     << "" << refused(1, 1, ".");
        QTest::newRow("exponent without digits") << "1e"
                                                 << "" << refused(1, 1, "1e");
    }
    void blocksAreReadAsNumbersOrRefused() {
        QFETCH(QString, text);
        QFETCH(QString, read);
        QFETCH(QString, refusal);
        const PastedBlock block(text.toStdString());
        QCOMPARE(QString::fromStdString(block.refusal()), refusal);
        if (refusal.isEmpty()) {
            QStringList rows;
            for (const auto& row : block.rows()) {
                QStringList cells;
                for (const std::string& cell : row)
                    cells.append(QString::fromStdString(cell));
                rows.append(cells.join(u'|'));
            }
            QCOMPARE(rows.join(u'/'), read);
        }
    }
};

} // namespace caudalera

using caudalera::PastedBlockTest;
QTEST_APPLESS_MAIN(PastedBlockTest)
#include "PastedBlockTest.moc"
