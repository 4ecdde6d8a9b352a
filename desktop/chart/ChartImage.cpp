#include "desktop/chart/ChartImage.h"

#include <QFile>
#include <QFileInfo>
#include <QSvgGenerator>
#include <qcustomplot.h>

namespace caudalera {

namespace {

/// Pixels of a picture for one of the screen, so that it stays sharp on paper.
constexpr double printScale = 3;

bool writeSvg(QCustomPlot& plot, const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QSvgGenerator generator;
    generator.setOutputDevice(&file);
    generator.setSize(plot.size());
    generator.setViewBox(QRect(QPoint(0, 0), plot.size()));
    generator.setResolution(plot.logicalDpiX());
    QCPPainter painter;
    if (!painter.begin(&generator))
        return false;
    painter.setMode(QCPPainter::pmVectorized);
    painter.setMode(QCPPainter::pmNoCaching);
    painter.setMode(QCPPainter::pmNonCosmetic);
    painter.fillRect(plot.rect(), plot.palette().base());
    plot.toPainter(&painter, plot.width(), plot.height());
    painter.end();
    return file.flush() && file.error() == QFile::NoError;
}

} // namespace

bool saveChartImage(QCustomPlot& plot, const QString& path) {
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QLatin1String("svg"))
        return writeSvg(plot, path);
    if (suffix == QLatin1String("pdf")) {
        return plot.savePdf(path, plot.width(), plot.height(), QCP::epNoCosmetic,
                            QStringLiteral("Caudalera"));
    }
    return plot.toPixmap(plot.width(), plot.height(), printScale).save(path, "PNG");
}

} // namespace caudalera
