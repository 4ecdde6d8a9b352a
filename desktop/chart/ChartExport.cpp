#include "desktop/chart/ChartExport.h"

#include "desktop/chart/ChartImage.h"
#include "desktop/session/FileNames.h"
#include "desktop/words/FileKinds.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QStandardPaths>

namespace caudalera {

namespace {

/// Where the last picture of the run went.
QString& lastFolder() {
    static QString folder;
    return folder;
}

QString folderToOffer() {
    const auto standard = [](QStandardPaths::StandardLocation place) {
        return QStandardPaths::writableLocation(place);
    };
    for (const QString& folder : {lastFolder(), standard(QStandardPaths::PicturesLocation),
                                  standard(QStandardPaths::DocumentsLocation)}) {
        if (!folder.isEmpty() && QFileInfo(folder).isDir())
            return folder;
    }
    return QDir::homePath();
}

QString title() {
    return QStringLiteral("Guardar imagen");
}

QString bare(const QString& filter) {
    const auto dot = filter.indexOf(QLatin1String("*."));
    return filter.mid(dot + 2, filter.indexOf(QRegularExpression("[ )]"), dot) - dot - 2);
}

bool mayReplace(const QString& path, QWidget* parent) {
    QMessageBox box(
        QMessageBox::Question, title(),
        QStringLiteral("%1 ya existe.\n¿Desea reemplazarlo?").arg(QFileInfo(path).fileName()),
        QMessageBox::NoButton, parent);
    const auto* replace = box.addButton(QStringLiteral("Reemplazar"), QMessageBox::AcceptRole);
    box.setDefaultButton(box.addButton(QStringLiteral("Cancelar"), QMessageBox::RejectRole));
    box.exec();
    return box.clickedButton() == replace;
}

} // namespace

QString imageNameFor(const QString& caption) {
    return fileNameOf(caption, QStringLiteral("gráfico"));
}

void askAndSaveChart(QCustomPlot& plot, const QString& caption, QWidget* parent) {
    words::FileKinds kinds;
    QFileDialog dialog(parent, title());
    words::prepare(dialog, kinds);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(chartImageFilters());
    dialog.setDefaultSuffix(bare(chartImageFilters().constFirst()));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     [&dialog](const QString& filter) { dialog.setDefaultSuffix(bare(filter)); });
    dialog.setDirectory(folderToOffer());
    dialog.selectFile(imageNameFor(caption));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return;
    const QString chosen = dialog.selectedFiles().constFirst();
    const QString path = withImageSuffix(chosen, dialog.selectedNameFilter());
    // The dialog asked about the name that it knew.
    if (path != chosen && QFileInfo::exists(path) && !mayReplace(path, parent))
        return;
    if (saveChartImage(plot, path)) {
        lastFolder() = QFileInfo(path).absolutePath();
        return;
    }
    QMessageBox box(QMessageBox::Warning, title(),
                    QStringLiteral("No se pudo guardar la imagen en\n%1\n\nCompruebe que la "
                                   "carpeta existe y que puede escribir en ella.")
                        .arg(QDir::toNativeSeparators(path)),
                    QMessageBox::NoButton, parent);
    box.addButton(QStringLiteral("Aceptar"), QMessageBox::AcceptRole);
    box.exec();
}

} // namespace caudalera
