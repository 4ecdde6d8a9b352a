#pragma once

#include <QProxyStyle>

namespace caudalera::style {

/// Fusion with the program's own drawings in message boxes and file dialogs.
class ProgramStyle : public QProxyStyle {
public:
    ProgramStyle();

    QIcon standardIcon(StandardPixmap which, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr,
                  const QWidget* widget = nullptr,
                  QStyleHintReturn* returned = nullptr) const override;
    QPixmap standardPixmap(StandardPixmap which, const QStyleOption* option = nullptr,
                           const QWidget* widget = nullptr) const override;
};

} // namespace caudalera::style
