#include "desktop/controls/ButtonViews.h"
#include "desktop/style/Style.h"
#include "tests/desktop/DesktopFixture.h"

#include <QLabel>
#include <QLineEdit>
#include <algorithm>
#include <cmath>

namespace caudalera {

namespace {

/// Relative luminance and contrast ratio of the Web Content Accessibility Guidelines 2.1.
double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}
double ratio(const QColor& a, const QColor& b) {
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

constexpr double readable = 4.5;
constexpr double readableDisabled = 3;

/// The least contrast of a colour with the ground of a button as it is drawn: a line from its upper
/// to its lower border, left of its icon.
double onGround(QPushButton& button, const QColor& ink) {
    const QImage image = button.grab().toImage();
    double least = 21;
    for (int y = 4; y < image.height() - 4; ++y)
        least = std::min(least, ratio(ink, image.pixelColor(4, y)));
    return least;
}

} // namespace

/// Every text stands out from its ground.
class ContrastTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { style::apply(*qApp); }

    void theRatioIsThatOfTheGuidelines() {
        // Black on white, and the grey #767676 that is the lightest one readable on white.
        QVERIFY(std::abs(ratio(Qt::black, Qt::white) - 21) < 1e-9);
        QVERIFY(std::abs(ratio(QColor(0x76, 0x76, 0x76), Qt::white) - 4.54) < 0.005);
    }

    void thePalettesTextsStandOutFromTheirGrounds() {
        const QPalette palette = QApplication::palette();
        using Role = QPalette::ColorRole;
        const std::initializer_list<std::pair<Role, Role>> pairs = {
            {QPalette::WindowText, QPalette::Window},
            {QPalette::Text, QPalette::Base},
            {QPalette::Text, QPalette::AlternateBase},
            {QPalette::ButtonText, QPalette::Button},
            {QPalette::HighlightedText, QPalette::Highlight},
            {QPalette::ToolTipText, QPalette::ToolTipBase},
            {QPalette::PlaceholderText, QPalette::Base},
            {QPalette::Link, QPalette::Base},
        };
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            for (const auto& [ink, ground] : pairs) {
                const double seen = ratio(palette.color(group, ink), palette.color(group, ground));
                const double least = group == QPalette::Disabled ? readableDisabled : readable;
                QVERIFY2(seen >= least, qPrintable(QStringLiteral("%1 on %2 in %3: %4")
                                                       .arg(ink)
                                                       .arg(ground)
                                                       .arg(group)
                                                       .arg(seen)));
            }
        }
    }

    void theProgramsOwnColoursDo() {
        const QColor ink = QApplication::palette().color(QPalette::Text);
        const QColor quiet = QApplication::palette().color(QPalette::Disabled, QPalette::Text);
        for (const QColor& ground :
             {style::paleAccent(), style::coverGround(), style::calmField(), style::selection()}) {
            QVERIFY(ratio(ink, ground) >= readable);
            QVERIFY(ratio(quiet, ground) >= readableDisabled);
        }
        QVERIFY(ratio(style::accentText(), style::accent()) >= readable);
        QVERIFY(ratio(style::accent(), QApplication::palette().color(QPalette::Window)) >=
                readable);
    }

    void everyWordOfEveryWindowDoes_data() {
        QTest::addColumn<QString>("name");
        for (const WindowEntry& entry : ventanas()) {
            const QByteArray name(entry.name.data(), static_cast<qsizetype>(entry.name.size()));
            QTest::newRow(name.constData()) << QString::fromUtf8(name);
        }
    }
    void everyWordOfEveryWindowDoes() {
        QFETCH(QString, name);
        DesktopFixture desktop;
        desktop.open(name.toStdString());
        for (const auto* label : desktop.view().findChildren<QLabel*>())
            check(*label, QPalette::WindowText, QPalette::Window);
        for (const auto* field : desktop.view().findChildren<QLineEdit*>())
            check(*field, QPalette::Text, QPalette::Base);
        for (auto* button : desktop.view().findChildren<CommandButton*>())
            checkButton(*button);
    }

    void theMainCommandDoesInAllItsStates() {
        DesktopFixture desktop;
        desktop.open("frmParamEsta");
        auto& button = desktop.widget<CommandButton>("bCalcular");
        checkButton(button);
        button.setFocus();
        checkButton(button);
        button.setDown(true);
        checkButton(button);
        button.setDown(false);
        QTest::mouseMove(&button);
        QTest::qWait(20);
        button.setAttribute(Qt::WA_UnderMouse);
        checkButton(button);
        button.setEnabled(false);
        QVERIFY(onGround(button, inkOf(button)) >= readableDisabled);
    }

private:
    static QColor inkOf(const QPushButton& button) {
        return button.palette().color(button.isEnabled() ? QPalette::Active : QPalette::Disabled,
                                      QPalette::ButtonText);
    }
    static void checkButton(QPushButton& button) {
        const double seen = onGround(button, inkOf(button));
        QVERIFY2(seen >= readable,
                 qPrintable(QStringLiteral("%1: %2").arg(button.objectName()).arg(seen)));
    }
    static void check(const QWidget& widget, QPalette::ColorRole ink, QPalette::ColorRole ground) {
        const double seen = ratio(widget.palette().color(QPalette::Active, ink),
                                  widget.palette().color(QPalette::Active, ground));
        QVERIFY2(seen >= readable,
                 qPrintable(QStringLiteral("%1: %2").arg(widget.objectName()).arg(seen)));
    }
};

} // namespace caudalera

using caudalera::ContrastTest;
QTEST_MAIN(ContrastTest)
#include "ContrastTest.moc"
