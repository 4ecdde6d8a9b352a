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
    case QStyle::SP_DirIcon:
    case QStyle::SP_DirOpenIcon:
    case QStyle::SP_DirClosedIcon:
    case QStyle::SP_DirHomeIcon:
        return QStringLiteral("Carpeta");
    case QStyle::SP_FileIcon:
        return QStringLiteral("Archivo");
    case QStyle::SP_ComputerIcon:
    case QStyle::SP_DriveHDIcon:
        return QStringLiteral("Equipo");
    default:
        return {};
    }
}

} // namespace

ProgramStyle::ProgramStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returned) const {
    // The buttons of dialogs say what they do in words.
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

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
