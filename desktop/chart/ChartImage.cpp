#include "desktop/chart/ChartImage.h"

#include <QFile>
#include <QFileInfo>
#include <QSvgGenerator>
#include <qcustomplot.h>
#include <vector>

namespace caudalera {

namespace {

/// Pixels of a picture for one of the screen, so that it stays sharp on paper.
constexpr double printScale = 3;
/// Thin lines and small type keep their edges.
constexpr int jpegQuality = 95;

struct Format {
    const char* filter;
    /// The first one is given to a name without any.
    QStringList suffixes;
};

const std::vector<Format>& formats() {
    static const std::vector<Format> all = {
        {"Imagen PNG (*.png)", {QStringLiteral("png")}},
        {"Imagen JPG (*.jpg *.jpeg)", {QStringLiteral("jpg"), QStringLiteral("jpeg")}},
        {"Imagen BMP (*.bmp)", {QStringLiteral("bmp")}},
        {"Dibujo SVG (*.svg)", {QStringLiteral("svg")}},
        {"Documento PDF (*.pdf)", {QStringLiteral("pdf")}},
    };
    return all;
}

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

QStringList chartImageFilters() {
    QStringList filters;
    for (const Format& format : formats())
        filters.append(QString::fromUtf8(format.filter));
    return filters;
}

QString withImageSuffix(const QString& path, const QString& filter) {
    const QString suffix = QFileInfo(path).suffix().toLower();
    QString given = formats().front().suffixes.front();
    for (const Format& format : formats()) {
        if (format.suffixes.contains(suffix))
            return path;
        if (filter == QString::fromUtf8(format.filter))
            given = format.suffixes.front();
    }
    return path + (path.endsWith(u'.') ? QString() : QStringLiteral(".")) + given;
}

bool saveChartImage(QCustomPlot& plot, const QString& path) {
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QLatin1String("svg"))
        return writeSvg(plot, path);
    if (suffix == QLatin1String("pdf")) {
        return plot.savePdf(path, plot.width(), plot.height(), QCP::epNoCosmetic,
                            QStringLiteral("Caudalera"));
    }
    const QPixmap picture = plot.toPixmap(plot.width(), plot.height(), printScale);
    if (suffix == QLatin1String("jpg") || suffix == QLatin1String("jpeg"))
        return picture.save(path, "JPG", jpegQuality);
    if (suffix == QLatin1String("bmp"))
        return picture.save(path, "BMP");
    return picture.save(path, "PNG");
}

} // namespace caudalera
