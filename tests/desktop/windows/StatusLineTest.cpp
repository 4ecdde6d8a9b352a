#include "desktop/controls/StatusLine.h"
#include "desktop/grid/GridView.h"
#include "desktop/style/Style.h"
#include "tests/desktop/DesktopFixture.h"

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <cmath>

// The foot of a window, and the dress of results that are older than the data.

namespace caudalera {

namespace {

constexpr const char* older = "Los datos cambiaron: los resultados son del cálculo anterior";

double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

/// As WCAG 2.1 has it.
double contrast(const QColor& a, const QColor& b) {
    const double light = std::max(luminance(a), luminance(b));
    const double dark = std::min(luminance(a), luminance(b));
    return (light + 0.05) / (dark + 0.05);
}

QColor pixel(QWidget& widget, const QPoint& at) {
    return widget.grab().toImage().pixelColor(at);
}

} // namespace

class StatusLineTest : public QObject {
    Q_OBJECT

private slots:
    void init() { desktop_ = std::make_unique<DesktopFixture>(); }
    void cleanup() {
        const QString boxes = desktop_->unexpectedBoxes();
        desktop_.reset();
        QVERIFY2(boxes.isEmpty(), qPrintable(boxes));
    }

    void theSentenceStandsAtTheLeftAndTheStateAtTheRightBelowAFineLine() {
        desktop_->open("frmDisNormal");
        auto& strip = desktop_->widget<QWidget>("StatusBar1");
        QCOMPARE(state(), QStringLiteral("Sin datos"));
        desktop_->typeValues({"4", "6", "5"});
        DesktopFixture::type("7");
        const auto& panel = *strip.findChild<ElidedLabel*>("panel");
        QCOMPARE(panel.text(), QStringLiteral("Para introducir o modificar datos, digitarlos y "
                                              "luego presionar ENTER"));
        QCOMPARE(state(), QStringLiteral("3 datos"));
        const auto& right = *strip.findChild<ElidedLabel*>("estado");
        // In line with the content above.
        const int margin = style::unit() + style::halfUnit();
        QCOMPARE(panel.x(), margin);
        QCOMPARE(right.geometry().right(), strip.rect().right() - margin);
        QVERIFY(panel.geometry().right() < right.x());
        QCOMPARE(pixel(strip, {0, 0}), style::lines());
        QCOMPARE(pixel(strip, {strip.width() - 1, 0}), style::lines());
        QCOMPARE(pixel(strip, {0, 1}), strip.palette().color(QPalette::Window));
    }

    void whereItIsTooNarrowTheWholeIsAToolTip() {
        ElidedLabel label;
        label.setWhole(QString::fromUtf8(older));
        label.resize(label.sizeHint());
        label.show();
        QCOMPARE(label.toolTip(), QString());
        label.resize(40, label.height());
        QCOMPARE(label.toolTip(), QString::fromUtf8(older));
        QVERIFY(label.minimumSizeHint().width() < 10);
        label.setWhole(QStringLiteral("69"));
        QCOMPARE(label.toolTip(), QString());
    }

    void savingConfirmsItself() {
        desktop_->open("frmDisNormal");
        desktop_->typeValues({"4", "6", "5"});
        const QTemporaryDir folder;
        desktop_->expectDialog([&](QDialog& dialog) {
            auto* name = dialog.findChild<QLineEdit*>();
            name->setText(folder.filePath("serie.X"));
            QTest::keyClick(name, Qt::Key_Return);
        });
        desktop_->clickButton("bCrear");
        QCOMPARE(state(), QStringLiteral("3 datos · guardado en serie.X"));
    }

    void olderResultsAreMutedUntilTheNextCalculation() {
        desktop_->open("frmDisNormal");
        desktop_->typeValues({"4", "6", "5", "7.5"});
        desktop_->clickButton("bCalcular");
        desktop_->clickButton("bGraficar");
        const Looks fresh = looks();
        QCOMPARE(state(), QStringLiteral("4 datos · calculado"));
        desktop_->clickCell(2, 1);
        DesktopFixture::type("6.5");
        QVERIFY(looks() == fresh);
        DesktopFixture::press(Qt::Key_Return);
        const Looks muted = looks();
        QCOMPARE(state(), QStringLiteral("4 datos · ") + older);
        QCOMPARE(muted.texts, fresh.texts);
        QCOMPARE(muted.field, style::staleGround());
        QCOMPARE(muted.cell, style::staleGround());
        QCOMPARE(muted.verdict, style::staleGround());
        QVERIFY(muted.chart != fresh.chart);
        desktop_->clickButton("bCalcular");
        desktop_->clickButton("bGraficar");
        QCOMPARE(state(), QStringLiteral("4 datos · calculado"));
        const Looks again = looks();
        QVERIFY(again.texts != fresh.texts);
        QCOMPARE(again.field, fresh.field);
        QCOMPARE(again.cell, fresh.cell);
        QCOMPARE(again.verdict, fresh.verdict);
        QCOMPARE(again.chart, fresh.chart);
    }

    void whatIsClearedIsNotMutedAnyMore() {
        desktop_->open("frmDisNormal");
        desktop_->typeValues({"4", "6", "5", "7.5"});
        const Looks empty = looks();
        desktop_->clickButton("bCalcular");
        desktop_->typeValues({"8"});
        QCOMPARE(looks().field, style::staleGround());
        desktop_->clickButton("bLimpiar");
        QVERIFY(looks() == empty);
    }

    void aChangeThatIsTakenBackMutesNothing() {
        desktop_->open("frmDisNormal");
        desktop_->typeValues({"4", "6", "5", "7.5"});
        desktop_->clickButton("bCalcular");
        const Looks fresh = looks();
        const auto change = [this](const char* value) {
            desktop_->clickCell(2, 1);
            DesktopFixture::type(QString::fromUtf8(value));
            DesktopFixture::press(Qt::Key_Return);
        };
        change("9");
        QVERIFY(!(looks() == fresh));
        QCOMPARE(state(), QStringLiteral("4 datos · ") + older);
        change("6");
        QCOMPARE(state(), QStringLiteral("4 datos · calculado"));
        QVERIFY(looks() == fresh);
    }

    void mutedTextsCanBeRead() {
        const double readable = 4.5;
        for (const QColor& ground : {style::staleGround(), style::paleAccent(), style::selection()})
            QVERIFY(contrast(style::staleText(), ground) >= readable);
        QVERIFY(contrast(style::staleText(), style::staleGround()) <
                contrast(qApp->palette().color(QPalette::Text), style::calmField()));
        // The captions of a chart, and the white behind them, through the veil.
        const auto veiled = [](const QColor& color) {
            QImage image(1, 1, QImage::Format_RGB32);
            image.fill(color);
            QPainter(&image).fillRect(image.rect(), style::staleVeil());
            return image.pixelColor(0, 0);
        };
        QVERIFY(contrast(veiled(qApp->palette().color(QPalette::Text)), veiled(Qt::white)) >=
                readable);
    }

    void theVeilOverAChartFollowsItAndLetsTheMouseThrough() {
        desktop_->open("frmDisNormal");
        desktop_->typeValues({"4", "6", "5", "7.5"});
        desktop_->clickButton("bCalcular");
        desktop_->clickButton("bGraficar");
        desktop_->typeValues({"8"});
        auto& chart = desktop_->widget<QWidget>("Graph1");
        const auto* veil = chart.findChild<QWidget*>("velo");
        QVERIFY(veil);
        QCOMPARE(veil->geometry(), chart.rect());
        desktop_->view().resize(desktop_->view().size() + QSize(60, 40));
        QTRY_COMPARE(veil->geometry(), chart.rect());
        QVERIFY(chart.childAt(chart.rect().center()) != veil);
    }

private:
    /// Grounds of a result field, a result cell, the verdict and the chart, and all texts.
    struct Looks {
        QColor field;
        QColor cell;
        QColor verdict;
        QColor chart;
        QStringList texts;

        bool operator==(const Looks&) const = default;
    };

    QString state() {
        return desktop_->widget<QWidget>("StatusBar1").findChild<ElidedLabel*>("estado")->text();
    }
    Looks looks() {
        auto& field = desktop_->widget<QLineEdit>("txtux");
        auto& grid = desktop_->widget<GridView>("grddis");
        auto& verdict = desktop_->widget<QLabel>("lblmensaje");
        auto& chart = desktop_->widget<QWidget>("Graph1");
        const QRect first = grid.visualRect(grid.model()->index(0, 1));
        QStringList texts = {field.text(), verdict.text(),
                             grid.model()->index(0, 3).data().toString()};
        return {pixel(field, {6, field.height() / 2}),
                pixel(*grid.viewport(), first.topLeft() + QPoint(3, 3)),
                pixel(verdict, {verdict.width() - 2, verdict.height() - 2}),
                chart.isVisible() ? pixel(chart, {3, 3}) : QColor(), texts};
    }

    std::unique_ptr<DesktopFixture> desktop_;
};

} // namespace caudalera

using caudalera::StatusLineTest;
QTEST_MAIN(StatusLineTest)
#include "StatusLineTest.moc"
