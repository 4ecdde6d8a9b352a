#include "desktop/session/DesktopPlatform.h"

#include "desktop/richtext/LayoutLimits.h"
#include "desktop/richtext/QtText.h"
#include "desktop/richtext/RichTextBridge.h"
#include "desktop/richtext/RichTextClipboard.h"
#include "desktop/session/Copies.h"
#include "desktop/session/Session.h"
#include "desktop/style/LongWork.h"
#include "desktop/style/Title.h"
#include "desktop/words/FileKinds.h"
#include "shell/files/TextFile.h"
#include "shell/main/frmCaudalera.h"
#include "shell/numbers/RuntimeFailure.h"
#include "shell/report/frmDocumento.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QPainter>
#include <QPixmap>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QUrl>

namespace caudalera {

namespace {

QString programTitle() {
    return QStringLiteral("Caudalera");
}
QString helpFile() {
    return QStringLiteral("Ayuda.chm");
}

std::string namedOrSystemSeparator() {
    const QString named = qEnvironmentVariable("CAUDALERA_DECIMAL");
    return (named.isEmpty() ? QLocale::system().decimalPoint() : named).toStdString();
}

QSettings settings() {
    return QSettings(QSettings::NativeFormat, QSettings::UserScope, programTitle(), programTitle());
}

QString settingPath(const std::string& key) {
    return QStringLiteral("Settings/") + toQString(key);
}

QString toQString(const std::filesystem::path& path) {
    return QString::fromStdU16String(path.u16string());
}

/// A word of a command line with the prefix that the program writes taken to the fixed directory.
QString mapped(const QString& word, const QString& fixedDirectory) {
    const QString prefix = QStringLiteral("c:\\Caudalera\\");
    if (!word.startsWith(prefix, Qt::CaseInsensitive))
        return word;
    return QDir(fixedDirectory)
        .filePath(word.mid(prefix.size()).replace(QLatin1Char('\\'), QLatin1Char('/')));
}

bool accepted(QDialog& dialog) {
    const LongWork::Pause pause;
    return dialog.exec() == QDialog::Accepted;
}

bool isOfReports(const FileDialog& dialog) {
    return dialog.filter.ends_with("|*.RTF");
}

/// What makes the report of a file too long to be shown; empty if nothing does. One that can't be
/// read is the command's affair.
QString excessOf(const std::string& path) {
    LongWork::announce();
    try {
        return richtext::excess(readRtf(leerArchivo(path)));
    } catch (const RuntimeFailure&) {
        return {};
    }
}

} // namespace

QString nameFilter(const std::string& filter) {
    const QStringList parts = toQString(filter).split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString pattern = QStringLiteral("(%1)").arg(parts[i + 1]);
        filters.append(parts[i].endsWith(pattern) ? parts[i]
                                                  : parts[i] + QLatin1Char(' ') + pattern);
    }
    return filters.join(QStringLiteral(";;"));
}

void printImage(QPrinter& printer, const QPixmap& image) {
    printer.setPageOrientation(image.width() > image.height() ? QPageLayout::Landscape
                                                              : QPageLayout::Portrait);
    QPainter painter;
    if (!painter.begin(&printer))
        return;
    const QRect page = printer.pageLayout().paintRectPixels(printer.resolution());
    const QSize size = image.size().scaled(page.size(), Qt::KeepAspectRatio);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QRect({(page.width() - size.width()) / 2, 0}, size), image);
}

DesktopPlatform::DesktopPlatform(Session& session)
    : session_(session), decimalSeparator_(namedOrSystemSeparator()),
      copiesFolder_(QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
                        .filePath(QStringLiteral("Caudalera - copias"))) {}

DesktopPlatform::~DesktopPlatform() = default;

QWidget* DesktopPlatform::parentForDialogs() const {
    // A pop-up goes away when it closes, a view that was retired soon, and either would take the
    // dialog with it.
    QWidget* active = QApplication::activeWindow();
    while (active && active->windowType() == Qt::Popup)
        active = active->parentWidget() ? active->parentWidget()->window() : nullptr;
    if (active && active->isVisible())
        return active;
    const Window* front = session_.program().front();
    return front ? session_.viewOf(*front) : nullptr;
}

void DesktopPlatform::showBox(const QString& text, const QString& title, Icon icon,
                              const QString& more) const {
    QMessageBox box(parentForDialogs());
    box.setWindowTitle(title.isEmpty() ? programTitle() : title);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    if (!more.isEmpty()) {
        box.setInformativeText(more);
        // Names of files are no markup, and a path can be copied.
        for (QLabel* label : box.findChildren<QLabel*>()) {
            if (label->text() == more) {
                label->setTextFormat(Qt::PlainText);
                label->setTextInteractionFlags(Qt::TextSelectableByMouse);
            }
        }
    }
    if (icon == Icon::information) {
        box.setIcon(QMessageBox::Information);
    } else if (icon == Icon::error) {
        box.setIcon(QMessageBox::Critical);
    }
    box.addButton(QStringLiteral("Aceptar"), QMessageBox::AcceptRole);
    style::makeRoomForTitle(box);
    const LongWork::Pause pause;
    box.exec();
}

void DesktopPlatform::showMessage(const Message& message) {
    session_.sync();
    showBox(toQString(message.text), toQString(message.title), message.icon);
}

std::optional<std::string> DesktopPlatform::showFileDialog(const FileDialog& dialog) {
    session_.sync();
    words::FileKinds kinds;
    QFileDialog box(parentForDialogs(), toQString(dialog.title));
    words::prepare(box, kinds);
    box.setAcceptMode(dialog.kind == FileDialog::Kind::open ? QFileDialog::AcceptOpen
                                                            : QFileDialog::AcceptSave);
    // Any name may be given: one that cannot be loaded is the command's affair.
    box.setFileMode(QFileDialog::AnyFile);
    box.setOption(QFileDialog::DontConfirmOverwrite);
    box.setNameFilter(nameFilter(dialog.filter));
    // A report is recognised by its suffix elsewhere; series files may be called anything.
    if (dialog.kind == FileDialog::Kind::save && isOfReports(dialog))
        box.setDefaultSuffix(QStringLiteral("rtf"));
    if (dialog.fileName.empty()) {
        box.setDirectory(QApplication::applicationDirPath());
    } else {
        const QFileInfo last(toQString(dialog.fileName));
        box.setDirectory(last.absolutePath());
        box.selectFile(last.fileName());
    }
    chosenFile_ = "";
    if (!accepted(box) || box.selectedFiles().isEmpty())
        return std::nullopt;
    const QString path = QDir::toNativeSeparators(box.selectedFiles().constFirst());
    if (dialog.kind == FileDialog::Kind::open && isOfReports(dialog)) {
        if (const QString excess = excessOf(path.toStdString()); !excess.isEmpty()) {
            showBox(QStringLiteral("«%1» es demasiado largo para mostrarlo: %2.\n\n"
                                   "No se ha abierto; el documento queda como estaba.")
                        .arg(QFileInfo(path).fileName(), excess),
                    toQString(dialog.title), Icon::information);
            return std::nullopt;
        }
    }
    chosenFile_ = path.toStdString();
    return chosenFile_;
}

bool DesktopPlatform::showPrintDialog(const PrintDialog& dialog) {
    session_.sync();
    auto printer = std::make_unique<QPrinter>();
    // As a saved report has it: tables are wide.
    printer->setPageOrientation(QPageLayout::Landscape);
    QPrintDialog box(printer.get(), parentForDialogs());
    box.setWindowTitle(toQString(dialog.title));
    box.setOption(QAbstractPrintDialog::PrintPageRange, false);
    box.setOption(QAbstractPrintDialog::PrintSelection, dialog.selection);
    if (dialog.selection)
        box.setPrintRange(QAbstractPrintDialog::Selection);
    if (!accepted(box))
        return false;
    printer_ = std::move(printer);
    return true;
}

void DesktopPlatform::printWindow(const Window& window) {
    session_.sync();
    QWidget* view = session_.viewOf(window);
    const QPrinterInfo printerInfo = QPrinterInfo::defaultPrinter();
    if (!view || printerInfo.isNull())
        return;
    QPrinter printer(printerInfo, QPrinter::HighResolution);
    printImage(printer, view->grab());
}

void DesktopPlatform::printDocument(const frmDocumento& document, bool selectionOnly) {
    if (!printer_)
        return;
    LongWork::announce();
    const RichText& text = document.rtfText;
    richtext::print(selectionOnly ? text.selection() : text, *printer_);
}

std::string DesktopPlatform::clipboardText() {
    return QGuiApplication::clipboard()->text().toStdString();
}

void DesktopPlatform::setClipboardText(const std::string& text) {
    QGuiApplication::clipboard()->setText(toQString(text));
}

std::string DesktopPlatform::clipboardRichText() {
    const QMimeData* const held = QGuiApplication::clipboard()->mimeData();
    return held ? richtext::fromClipboard(*held) : std::string();
}

void DesktopPlatform::setClipboardRichText(const std::string& rtf) {
    QGuiApplication::clipboard()->setMimeData(richtext::toClipboard(rtf).release());
}

std::string DesktopPlatform::decimalSeparator() {
    // The commands that read and write many numbers tell on this way that they go on.
    LongWork::step();
    return decimalSeparator_;
}

std::optional<std::string> DesktopPlatform::setting(const std::string& key) {
    const QVariant value = settings().value(settingPath(key));
    if (!value.isValid())
        return std::nullopt;
    return value.toString().toStdString();
}

void DesktopPlatform::setSetting(const std::string& key, const std::string& value) {
    settings().setValue(settingPath(key), toQString(value));
}

bool DesktopPlatform::startProcess(const std::string& commandLine) {
    const QString directory = toQString(fixedDirectory());
    QStringList words = toQString(commandLine).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (QString& word : words)
        word = mapped(word, directory);
    if (words.isEmpty())
        return false;
    QString viewer = words.takeFirst();
#ifdef Q_OS_WIN
    // The system looks for the suffix itself only where a name stands without its folder.
    viewer += QStringLiteral(".exe");
#endif
    if (QProcess::startDetached(viewer, words))
        return true;
    return !words.isEmpty() && words.constLast().contains(helpFile()) && openHelpFile();
}

bool DesktopPlatform::openHelp(const Window* window) {
    std::string order = ordenAyuda;
    if (window)
        order += "::/" + window->name() + ".html";
    return startProcess(order);
}

bool DesktopPlatform::openHelpFile() {
    const QDir directory(toQString(fixedDirectory()));
    return directory.exists(helpFile()) &&
           QDesktopServices::openUrl(QUrl::fromLocalFile(directory.filePath(helpFile())));
}

std::filesystem::path DesktopPlatform::fixedDirectory() {
    const QString named = qEnvironmentVariable("CAUDALERA_DIR");
    if (!named.isEmpty())
        return named.toStdU16String();
    const QDir program(QApplication::applicationDirPath());
#ifdef Q_OS_WIN
    // A copy that was not installed has its data with it.
    if (program.exists(QStringLiteral("datos")))
        return program.filePath(QStringLiteral("datos")).toStdU16String();
    return "C:\\Caudalera\\";
#else
    // Installed and in the build tree alike, the data lie beside the folder of the program.
    return QDir::cleanPath(program.filePath(QStringLiteral("../share/caudalera"))).toStdU16String();
#endif
}

FixedFont DesktopPlatform::reportFont() {
    return richtext::boxFont();
}

void DesktopPlatform::endProgram(const Ending& ending) {
    if (ending.reason != Ending::Reason::exit) {
        // They stand before the views and the box are tried, whatever becomes of those.
        const Copies copies = copyAllOpen(session_.program(), copiesFolder_);
        showBox(wordsOf(ending), programTitle(), Icon::error, copies.words());
    }
    session_.end(ending);
}

QString DesktopPlatform::wordsOf(const Ending& ending) {
    if (ending.reason == Ending::Reason::fatal) {
        session_.sync();
        return QStringLiteral("Error '%1' en tiempo de ejecución:\n\n%2")
            .arg(ending.number)
            .arg(toQString(nombreFallo(ending.number)));
    }
    // What the views show now may be the very fault.
    QString text = QStringLiteral("Caudalera ha tenido un fallo interno y debe cerrarse.");
    if (!ending.what.empty())
        text += QStringLiteral("\n\n") + QString::fromStdString(ending.what);
    return text;
}

} // namespace caudalera
