#include "desktop/style/Style.h"

#include "desktop/style/ProgramStyle.h"

#include "desktop/style/FocusRing.h"

#include <QApplication>
#include <QFile>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QPalette>
#include <QStyle>
#include <algorithm>
#include <array>

// The drawings lie in a static library, which brings them along only when asked by name; the macro
// works outside of namespaces alone.
static void loadDrawings() {
    Q_INIT_RESOURCE(caudalera);
}

namespace caudalera::style {

namespace {

constexpr QRgb ground = 0xFFF4F6F7;
constexpr QRgb text = 0xFF1E2A30;
/// Readable as well, on any of the grounds.
constexpr QRgb quietText = 0xFF66737A;
constexpr QRgb placeholder = 0xFF5B686E;

} // namespace

QColor accent() {
    return {0x1F, 0x6F, 0x8B};
}
QColor buttonAccent() {
    return {0x12, 0x4E, 0x63};
}
QColor accentText() {
    return Qt::white;
}
QColor paleAccent() {
    return {0xE3, 0xEE, 0xF2};
}
QColor coverGround() {
    return {0xF3, 0xF8, 0xFA};
}
QColor calmField() {
    return {0xEE, 0xF3, 0xF5};
}
QColor staleGround() {
    return {0xEC, 0xE7, 0xDA};
}
QColor staleText() {
    return {0x56, 0x60, 0x65};
}
QColor staleVeil() {
    return {0xCF, 0xC4, 0xA8, 0x59};
}
QColor editedCell() {
    return {0xFF, 0xF3, 0xCF};
}
QColor selection() {
    return {0xCF, 0xE3, 0xEA};
}
QColor lines() {
    return {0xD3, 0xDC, 0xE0};
}

QColor seriesColor(int i) {
    // From dark to light and back, each next to one of another lightness.
    static const std::array<QColor, 6> colors = {
        QColor(0x1F, 0x6F, 0x8B), QColor(0xD9, 0x6C, 0x06), QColor(0x2E, 0x2A, 0x5B),
        QColor(0x6B, 0xA2, 0x3F), QColor(0xA3, 0x1F, 0x4B), QColor(0x7B, 0x8A, 0x92)};
    return colors[static_cast<std::size_t>(std::max(i, 0)) % colors.size()];
}

Qt::PenStyle seriesPen(int i) {
    static constexpr std::array pens = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine,
                                        Qt::DashDotDotLine};
    return pens[static_cast<std::size_t>(std::max(i, 0)) % pens.size()];
}

QFont fixedFont() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
#ifdef Q_OS_WIN
    // What Windows names has hairlines, which are hard to read on a screen.
    font.setFamilies({QStringLiteral("Consolas"), font.family()});
#endif
    font.setStyleHint(QFont::Monospace);
    return font;
}

int unit() {
    return std::max(6, QFontMetrics(QApplication::font()).height() / 2);
}

int halfUnit() {
    return (unit() + 1) / 2;
}

QIcon icon(const QString& name) {
    const QString normal = QStringLiteral(":/icons/%1.svg").arg(name);
    if (!QFile::exists(normal))
        return {};
    QIcon icon(normal);
    const QString hover = QStringLiteral(":/icons/%1-hover.svg").arg(name);
    if (QFile::exists(hover))
        icon.addFile(hover, {}, QIcon::Active);
    return icon;
}

QString drawingPath(const QString& name) {
    return QStringLiteral(":/drawings/%1.svg").arg(name);
}

void apply(QApplication& application) {
    loadDrawings();
    QApplication::setStyle(new ProgramStyle);

    QPalette palette;
    palette.setColor(QPalette::Window, QColor(ground));
    palette.setColor(QPalette::WindowText, QColor(text));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, calmField());
    palette.setColor(QPalette::Text, QColor(text));
    palette.setColor(QPalette::PlaceholderText, QColor(placeholder));
    palette.setColor(QPalette::Button, QColor(0xFF, 0xFF, 0xFF));
    palette.setColor(QPalette::ButtonText, QColor(text));
    palette.setColor(QPalette::Light, Qt::white);
    palette.setColor(QPalette::Midlight, QColor(0xE6, 0xEB, 0xEE));
    palette.setColor(QPalette::Mid, QColor(0xB7, 0xC3, 0xC9));
    palette.setColor(QPalette::Dark, QColor(0x8E, 0x9C, 0xA3));
    palette.setColor(QPalette::Shadow, QColor(0x5B, 0x68, 0x6E));
    palette.setColor(QPalette::Highlight, accent());
    palette.setColor(QPalette::HighlightedText, accentText());
    palette.setColor(QPalette::Link, accent());
    palette.setColor(QPalette::ToolTipBase, QColor(0xFF, 0xFE, 0xF5));
    palette.setColor(QPalette::ToolTipText, QColor(text));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(quietText));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(quietText));
    QApplication::setPalette(palette);
    if (!application.findChild<FocusRing*>())
        new FocusRing(application);

    application.setWindowIcon(icon(QStringLiteral("app")));
}

} // namespace caudalera::style
