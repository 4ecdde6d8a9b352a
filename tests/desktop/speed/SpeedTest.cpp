// Time limits of what people wait for. Tests that measure time stand in this program, which runs
// alone.

#include "desktop/richtext/RichTextBridge.h"
#include "tests/desktop/DesktopFixture.h"
#include "tests/desktop/report/ReportFixture.h"
#include "tests/speed/Stopwatch.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>

using namespace caudalera;

class SpeedTest : public QObject {
    Q_OBJECT

private:
    static QByteArray shown(const Stopwatch& watch) {
        return QByteArray::number(watch.seconds()) + " s";
    }

private slots:
    void initTestCase() { style::apply(*qApp); }

    void aReportOfManyRowsShowsAtOnce() {
        ReportFixture on;
        QVERIFY(on.open());
        const Stopwatch watch;
        on.compose("Largo", 499);
        on.view()->grab();
        QVERIFY2(watch.seconds() < 1.5, shown(watch));
    }

    void aReportAtTheStartOfAVeryLongDocumentShowsAsSoonAsAtItsEnd() {
        ReportFixture on;
        QVERIFY(on.open());
        on.session->act([&] { on.text().assign(std::vector<Paragraph>(30000)); });
        const auto taken = [&](std::size_t caret) {
            on.session->act([&] { on.text().select(caret, 0); });
            const Stopwatch watch;
            on.compose("Largo", 500);
            return watch.seconds();
        };
        const double atEnd = taken(on.text().length());
        const double atStart = taken(0);
        QVERIFY2(atStart < 3 * atEnd + 0.2,
                 QByteArray::number(atStart) + " s against " + QByteArray::number(atEnd) + " s");
        QVERIFY(richtext::paragraphsOf(*on.view()->document()) == on.text().paragraphs());
    }

    void typingInAVeryLongReportStaysFluid() {
        ReportFixture on;
        QVERIFY(on.open());
        on.session->act([&] {
            std::vector<Paragraph> paragraphs(30000);
            for (std::size_t i = 0; i < paragraphs.size(); ++i)
                paragraphs[i].runs = {{std::to_string(i) + "\t122.0\t0.0143\t-1.4454", {}}};
            on.text().assign(std::move(paragraphs));
        });
        QTextCursor middle(on.view()->document()->findBlockByNumber(15000));
        on.view()->setTextCursor(middle);
        // The toolkit lays a document out while it is idle; the first key is not to wait for that.
        static_cast<void>(on.view()->document()->documentLayout()->documentSize());
        const Stopwatch watch;
        for (int i = 0; i < 50; ++i)
            QTest::keyClick(on.view(), i % 10 == 9 ? Qt::Key_Return : Qt::Key_A);
        // A key each 40 ms is faster than anyone types.
        QVERIFY2(watch.seconds() < 50 * 0.040, shown(watch));
        QCOMPARE(on.text().paragraphs().size(), std::size_t{30005});
        QVERIFY(richtext::paragraphsOf(*on.view()->document()) == on.text().paragraphs());
    }

    void aValueIsTakenAtOnceInAGridOf32000Rows() {
        DesktopFixture desktop;
        desktop.open("frmEjRegSimple");
        constexpr long filled = 31998;
        // Rows of data without typing them, the append row behind.
        desktop.session.act([&] {
            desktop.program().act([&] {
                MSFlexGrid& grid = desktop.grid();
                grid.setRows(filled + 2);
                for (long row = 1; row <= filled; ++row)
                    grid.setTextMatrix(row, 1, std::to_string(row));
            });
        });
        desktop.press(Qt::Key_End, Qt::ControlModifier);
        desktop.press(Qt::Key_Home);
        QCOMPARE(desktop.grid().Row(), filled + 1);
        const Stopwatch watch;
        constexpr int rows = 10;
        for (int i = 0; i < rows; ++i)
            desktop.typeValues({"12.5", "13.5"});
        // Two values a row.
        QVERIFY2(watch.seconds() < 2 * rows * 0.200, shown(watch));
        QCOMPARE(desktop.row(32008), QStringLiteral(" 32008|12.5|13.5"));
    }
};

QTEST_MAIN(SpeedTest)
#include "SpeedTest.moc"
