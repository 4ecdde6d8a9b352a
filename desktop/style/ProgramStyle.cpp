#include "desktop/style/ProgramStyle.h"

#include "desktop/style/Style.h"

#include <QStyleFactory>

namespace caudalera::style {

namespace {

/// Name of our own drawing; empty where the toolkit's stays.
QString drawingOf(QStyle::StandardPixmap which) {
    switch (which) {
    case QStyle::SP_MessageBoxInformation:
        return QStringLiteral("Informacion");
    case QStyle::SP_MessageBoxWarning:
        return QStringLiteral("Advertencia");
    case QStyle::SP_MessageBoxCritical:
        return QStringLiteral("Fallo");
    case QStyle::SP_MessageBoxQuestion:
        return QStringLiteral("Pregunta");
    case QStyle::SP_ArrowBack:
        return QStringLiteral("Atras");
    case QStyle::SP_ArrowForward:
        return QStringLiteral("Adelante");
    case QStyle::SP_FileDialogToParent:
        return QStringLiteral("Subir");
    case QStyle::SP_FileDialogNewFolder:
        return QStringLiteral("CarpetaNueva");
    case QStyle::SP_FileDialogListView:
        return QStringLiteral("Lista");
    case QStyle::SP_FileDialogDetailedView:
        return QStringLiteral("Detalles");
    default:
        return {};
    }
}

} // namespace

ProgramStyle::ProgramStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

QIcon ProgramStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                                 const QWidget* widget) const {
    const QString drawing = drawingOf(which);
    return drawing.isEmpty() ? QProxyStyle::standardIcon(which, option, widget) : icon(drawing);
}

QPixmap ProgramStyle::standardPixmap(StandardPixmap which, const QStyleOption* option,
                                     const QWidget* widget) const {
    const QString drawing = drawingOf(which);
    if (drawing.isEmpty())
        return QProxyStyle::standardPixmap(which, option, widget);
    return icon(drawing).pixmap(pixelMetric(PM_MessageBoxIconSize, option, widget));
}

} // namespace caudalera::style
