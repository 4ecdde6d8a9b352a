#include "desktop/session/Copies.h"

#include "desktop/richtext/QtText.h"
#include "desktop/session/FileNames.h"
#include "shell/files/TextFile.h"
#include "shell/numbers/RuntimeFailure.h"
#include "shell/report/frmPadre.h"
#include "shell/worksheet/Worksheet.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <exception>
#include <functional>

namespace caudalera {

namespace {

QString nameOf(const std::string& caption) {
    return fileNameOf(toQString(caption), QStringLiteral("Sin nombre"));
}

/// "X" of "Valores de X|*.X".
QString suffixOf(const SeriesLayout& layout) {
    return QFileInfo(toQString(layout.saveFilter)).suffix();
}

/// A cell as a column of the text: a number with a decimal point, whatever it is shown with.
std::string cell(std::string text, const std::string& decimal) {
    for (char& character : text) {
        if (character == '\t' || character == '\n' || character == '\r')
            character = ' ';
    }
    const std::size_t sign = decimal == "." ? std::string::npos : text.find(decimal);
    if (sign == std::string::npos)
        return text;
    std::string number = text;
    number.erase(sign, decimal.size());
    number.insert(sign, 1, '.');
    const bool isNumber = number.find_first_not_of(" 0123456789.+-eE") == std::string::npos &&
                          number.find('.', sign + 1) == std::string::npos;
    return isNumber ? number : text;
}

class Copier {
public:
    Copier(const Program& program, QString parent)
        : program_(program), decimal_(program.platform().decimalSeparator()),
          parent_(std::move(parent)) {}

    void copyAll() {
        for (const auto& window : program_.windows()) {
            if (const auto* reports = dynamic_cast<const frmPadre*>(window.get())) {
                for (const auto& document : reports->documents())
                    noting(toQString(document->caption), [&] { copyReport(*document); });
            } else {
                noting(toQString(window->caption), [&] { copyWindow(*window); });
            }
        }
        // Nothing came of it.
        if (written_ == 0 && !copies_.folder.isEmpty()) {
            QDir().rmdir(copies_.folder);
            copies_.folder.clear();
        }
    }

    Copies take() { return std::move(copies_); }

private:
    void copyWindow(const Window& window) {
        const QString name = nameOf(window.caption);
        const auto* sheet = dynamic_cast<const Worksheet*>(&window);
        int results = 0;
        for (const Control* control : window.controls()) {
            const auto* grid = dynamic_cast<const MSFlexGrid*>(control);
            if (!grid)
                continue;
            if (sheet && grid == &sheet->grdt) {
                copyData(*sheet, name + QStringLiteral(" - datos"));
                copyEditBox(*grid, name + QStringLiteral(" - casilla abierta"));
                continue;
            }
            const QString number = ++results > 1 ? QStringLiteral(" %1").arg(results) : QString();
            // What leads a row is part of a result.
            copyText(*grid, 0, name + QStringLiteral(" - resultados") + number);
        }
    }

    void copyData(const Worksheet& sheet, const QString& name) {
        if (sheet.grdt.Rows() > sheet.grdt.FixedRows() + 1) {
            put(name, suffixOf(sheet.seriesLayout()), [&](const std::string& path) {
                // The program's own may have a file in use.
                Variables variables;
                sheet.guardarSerie(variables, path);
            });
        }
        // Without the labels of the rows it can be pasted into the grid as it is.
        copyText(sheet.grdt, sheet.grdt.FixedCols(), name);
    }

    void copyText(const MSFlexGrid& grid, long firstCol, const QString& name) {
        const std::string text = textOf(grid, firstCol);
        if (!text.empty())
            putText(name, text);
    }

    void copyEditBox(const MSFlexGrid& grid, const QString& name) {
        if (!grid.editor || !grid.editor->visible || grid.editor->text().empty())
            return;
        putText(name, "Fila\tColumna\tTexto\n" + std::to_string(grid.Row()) + '\t' +
                          cell(grid.TextMatrix(0, grid.Col()), decimal_) + '\t' +
                          cell(grid.editor->text(), decimal_) + '\n');
    }

    void copyReport(const frmDocumento& document) {
        if (document.rtfText.text().empty())
            return;
        const QFileInfo file(toQString(document.caption));
        const bool isPath = file.fileName() != toQString(document.caption);
        put(nameOf(isPath ? file.completeBaseName().toStdString() : document.caption),
            QStringLiteral("rtf"), [&](const std::string& path) {
                escribirArchivo(path, writeRtf(document.rtfText, program_.platform().reportFont()));
            });
    }

    /// The titles of the columns in one line, then the rows down to the last one that holds
    /// something; empty if none does.
    std::string textOf(const MSFlexGrid& grid, long firstCol) const {
        std::string text;
        std::size_t end = 0;
        for (long col = firstCol; col < grid.Cols(); ++col) {
            std::string title;
            for (long row = 0; row < grid.FixedRows(); ++row) {
                if (row > 0)
                    title += ' ';
                title += grid.TextMatrix(row, col);
            }
            if (col > firstCol)
                text += '\t';
            text += cell(title, decimal_);
        }
        text += '\n';
        for (long row = grid.FixedRows(); row < grid.Rows(); ++row) {
            bool holds = false;
            for (long col = firstCol; col < grid.Cols(); ++col) {
                const std::string& content = grid.TextMatrix(row, col);
                holds = holds || (col >= grid.FixedCols() && !content.empty());
                if (col > firstCol)
                    text += '\t';
                text += cell(content, decimal_);
            }
            text += '\n';
            if (holds)
                end = text.size();
        }
        return text.substr(0, end);
    }

    void putText(const QString& name, const std::string& text) {
        put(name, QStringLiteral("txt"),
            [&](const std::string& path) { escribirArchivo(path, text); });
    }

    /// Writes one file.
    void put(const QString& name, const QString& suffix,
             const std::function<void(const std::string& path)>& write) {
        if (!makeFolder())
            return;
        QString file = name + u'.' + suffix;
        for (int i = 2; QFileInfo::exists(path(file)); ++i)
            file = QStringLiteral("%1 (%2).%3").arg(name).arg(i).arg(suffix);
        noting(file, [&] {
            write(path(file).toStdString());
            ++written_;
        });
    }

    /// What a step can't do is noted and goes no further.
    void noting(const QString& what, const std::function<void()>& step) {
        try {
            step();
        } catch (const RuntimeFailure& failure) {
            note(what, toQString(nombreFallo(failure.number())));
        } catch (const std::exception& fault) {
            note(what, QString::fromLocal8Bit(fault.what()));
        }
    }

    QString path(const QString& file) const { return QDir(copies_.folder).filePath(file); }

    void note(const QString& what, const QString& reason) {
        copies_.failures.append(QStringLiteral("%1: %2").arg(what, reason));
    }

    /// Makes the folder for the first file; tried once.
    bool makeFolder() {
        if (folderTried_)
            return !copies_.folder.isEmpty();
        folderTried_ = true;
        const QString name =
            QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH.mm.ss"));
        QString folder = QDir(parent_).filePath(name);
        for (int i = 2; QFileInfo::exists(folder); ++i)
            folder = QDir(parent_).filePath(QStringLiteral("%1 (%2)").arg(name).arg(i));
        if (!QDir().mkpath(folder)) {
            note(QDir::toNativeSeparators(folder), QStringLiteral("no se puede crear la carpeta"));
            return false;
        }
        copies_.folder = folder;
        return true;
    }

    const Program& program_;
    const std::string decimal_;
    const QString parent_;
    Copies copies_;
    int written_ = 0;
    bool folderTried_ = false;
};

} // namespace

QString Copies::words() const {
    QStringList parts;
    if (!folder.isEmpty()) {
        parts.append(QStringLiteral("Hay una copia de lo que estaba abierto en:\n%1")
                         .arg(QDir::toNativeSeparators(folder)));
    }
    if (!failures.isEmpty())
        parts.append(QStringLiteral("No se pudo copiar:\n%1").arg(failures.join(u'\n')));
    return parts.join(QStringLiteral("\n\n"));
}

Copies copyAllOpen(const Program& program, const QString& parent) noexcept {
    try {
        Copier copier(program, parent);
        copier.copyAll();
        return copier.take();
    } catch (...) {
        return {};
    }
}

} // namespace caudalera
