#include "desktop/session/Printers.h"

#include <QGuiApplication>
#include <QPrinterInfo>

namespace caudalera {

QString Printers::standardMissing() const {
    if (any_ && !standard_)
        return QStringLiteral("No hay impresora predeterminada");
    return anyMissing();
}

QString Printers::anyMissing() const {
    return any_ ? QString() : QStringLiteral("No hay ninguna impresora");
}

void Printers::watch() {
    look();
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) {
                if (state == Qt::ApplicationActive && !standard_)
                    look();
            });
}

void Printers::found(bool any, bool standard) {
    if (any == any_ && standard == standard_)
        return;
    any_ = any;
    standard_ = standard;
    emit changed();
}

void Printers::look() {
    found(!QPrinterInfo::availablePrinterNames().isEmpty(),
          !QPrinterInfo::defaultPrinterName().isEmpty());
}

} // namespace caudalera
