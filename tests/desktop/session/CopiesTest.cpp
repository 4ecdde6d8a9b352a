#include "desktop/session/Copies.h"
#include "recording/Act.h"
#include "recording/RecordingPlatform.h"
#include "shell/report/frmPadre.h"
#include "shell/worksheet/PastedBlock.h"
#include "shell/worksheet/Worksheet.h"
#include "tests/desktop/DesktopFixture.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStandardPaths>

// The copies that a failing program leaves, loaded back through the program's own commands.

namespace caudalera {

namespace {

using Cells = std::vector<std::vector<std::string>>;

/// Cells below the headers from a column on; rows in which nothing stands left out at the end.
Cells cellsOf(const MSFlexGrid& grid, long firstCol) {
    Cells rows;
    std::size_t filled = 0;
    for (long row = grid.FixedRows(); row < grid.Rows(); ++row) {
        rows.emplace_back();
        for (long col = firstCol; col < grid.Cols(); ++col) {
            rows.back().push_back(grid.TextMatrix(row, col));
            if (col >= grid.FixedCols() && !rows.back().back().empty())
                filled = rows.size();
        }
    }
    rows.resize(filled);
    return rows;
}

/// A program without a screen that loads what another one left.
class Reader {
public:
    Reader() : program(platform, ventanas()) { program.start(); }

    RecordingPlatform platform;
    Program program;

    Worksheet& open(const std::string& name) {
        program.act([&] { program.show(name); });
        return dynamic_cast<Worksheet&>(*program.find(name));
    }
    const MSFlexGrid& load(const std::string& name, const QString& path) {
        Worksheet& sheet = open(name);
        platform.answers = {path.toStdString()};
        program.click(sheet.bAccesar);
        return sheet.grdt;
    }
    const MSFlexGrid& paste(const std::string& name, const QString& text) {
        Worksheet& sheet = open(name);
        PastedBlock(text.toStdString()).enter(program, sheet.grdt);
        return sheet.grdt;
    }
    std::string report(const QString& path) {
        program.act([&] { program.show("frmPadre"); });
        auto& padre = *ventanaDeReportes(program);
        platform.answers = {path.toStdString()};
        program.click(padre.mnuFileOpen);
        return padre.active()->rtfText.text();
    }
};

QString contentOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("no such file: " + path.toStdString());
    return QString::fromUtf8(file.readAll());
}

/// Lines of a text of columns.
std::vector<std::vector<std::string>> columnsOf(const QString& text) {
    Cells rows;
    for (const QString& line : text.chopped(1).split(u'\n')) {
        rows.emplace_back();
        for (const QString& cell : line.split(u'\t'))
            rows.back().push_back(cell.toStdString());
    }
    return rows;
}

constexpr const char* divisionByZero = "Error '11' en tiempo de ejecución:\n\nDivisión por cero";

} // namespace

class CopiesTest : public QObject {
    Q_OBJECT

private slots:
    void init() { desktop_ = std::make_unique<DesktopFixture>(); }
    void cleanup() {
        const QString boxes = desktop_->unexpectedBoxes();
        desktop_.reset();
        QVERIFY2(boxes.isEmpty(), qPrintable(boxes));
    }

    void theyGoAmongTheUsersDocuments() {
        const Session session(ventanas(), makeView);
        QCOMPARE(const_cast<Session&>(session).platform().copiesFolder(),
                 QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) +
                     "/Caudalera - copias");
    }

    void aFullWindowIsLoadedBackWhole() {
        fillNormal();
        const Cells data = cellsOf(desktop_->grid(), 1);
        const Cells results = cellsOf(desktop_->control<MSFlexGrid>("grddis"), 0);
        QCOMPARE(data.size(), std::size_t{6});
        QCOMPARE(results.size(), std::size_t{6});
        fail();
        const QString name = QString::fromStdString(desktop_->window().caption);
        QCOMPARE(files(), QStringList({name + " - datos.X", name + " - datos.txt",
                                       name + " - resultados.txt"}));
        Reader reader;
        QCOMPARE(cellsOf(reader.load("frmDisNormal", path(name + " - datos.X")), 1), data);
        const QString text = contentOf(path(name + " - datos.txt"));
        QCOMPARE(text.section(u'\n', 0, 0), QStringLiteral("X"));
        QCOMPARE(cellsOf(reader.paste("frmDisGumbel", text), 1), data);
        Cells told = columnsOf(contentOf(path(name + " - resultados.txt")));
        QCOMPARE(told.front().front(), desktop_->control<MSFlexGrid>("grddis").TextMatrix(0, 0));
        told.erase(told.begin());
        QCOMPARE(told, results);
    }

    void severalWindowsAndReportsAreLoadedBack() {
        fillNormal();
        desktop_->clickButton("bReporte");
        auto& padre = *ventanaDeReportes(desktop_->program());
        const std::string first = padre.active()->rtfText.text();
        QVERIFY(first.find("1234.567") != std::string::npos);
        desktop_->session.act([&] { desktop_->program().click(padre.mnuFileNew); });
        desktop_->session.act([&] {
            desktop_->program().act(
                [&] { padre.active()->rtfText.setSelText("Año húmedo\n\n\tQ = 12.5 m³/s\n"); });
        });
        const std::string second = padre.active()->rtfText.text();

        // Their file carries the start year behind the rows, and pairs two values a record.
        desktop_->open("frmQmaxGumbel");
        desktop_->widget<QWidget>("txtanno").setFocus();
        DesktopFixture::type("1998");
        desktop_->typeValues({"310.5", "275.25", "402"});
        const Cells years = cellsOf(desktop_->grid(), 0);
        const auto peaks = dynamic_cast<Worksheet*>(&desktop_->window());
        desktop_->open("frmEjRegSimple");
        desktop_->typeValues({"1", "2.5", "3", "4.125"});
        const Cells pairs = cellsOf(desktop_->grid(), 1);
        fail();

        Reader reader;
        const MSFlexGrid& loaded = reader.load(
            "frmQmaxGumbel", path(QString::fromStdString(peaks->caption) + " - datos.Q"));
        QCOMPARE(loaded.TextMatrix(1, 0), std::string(" 1998"));
        for (long row = 1; row <= 3; ++row) {
            for (long col = 0; col < 2; ++col) {
                QCOMPARE(loaded.TextMatrix(row, col),
                         years[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(col)]);
            }
        }
        const QString regression =
            QString::fromStdString(desktop_->program().find("frmEjRegSimple")->caption);
        QCOMPARE(cellsOf(reader.load("frmEjRegSimple", path(regression + " - datos.XY")), 1),
                 pairs);
        QCOMPARE(reader.report(path("Documento 1.rtf")), first);
        QCOMPARE(reader.report(path("Documento 2.rtf")), second);
    }

    void whatStandsInAnOpenEditBoxIsInACopyOfItsOwn() {
        fillNormal();
        desktop_->clickCell(2, 1);
        DesktopFixture::type("5000");
        fail();
        const QString name = QString::fromStdString(desktop_->window().caption);
        QCOMPARE(contentOf(path(name + " - casilla abierta.txt")),
                 QStringLiteral("Fila\tColumna\tTexto\n2\tX\t5000\n"));
        // No command has stored it.
        QVERIFY(!contentOf(path(name + " - datos.txt")).contains("5000"));
    }

    void aWindowThatWasJustOpenedHoldsNothing() {
        for (const WindowEntry& entry : ventanas())
            desktop_->open(std::string(entry.name));
        const Copies copies = copyAllOpen(desktop_->program(), desktop_->copiesFolder());
        const QDir found(copies.folder);
        QVERIFY2(copies.folder.isEmpty(), qPrintable(found.entryList(QDir::Files).join(u'\n')));
        QCOMPARE(copies.words(), QString());
        QVERIFY(!QDir(desktop_->copiesFolder()).exists());
    }

    void numbersHaveADecimalPointWhateverTheyAreShownWith() {
        const QByteArray usual = qgetenv("CAUDALERA_DECIMAL");
        qputenv("CAUDALERA_DECIMAL", ",");
        desktop_ = std::make_unique<DesktopFixture>();
        qputenv("CAUDALERA_DECIMAL", usual);
        desktop_->open("frmDisNormal");
        desktop_->typeValues({"12"});
        // The edit box gives its text as it stands, by the Up key without another reading.
        desktop_->clickCell(1, 1);
        DesktopFixture::type("12,75");
        DesktopFixture::press(Qt::Key_Up);
        QCOMPARE(desktop_->grid().TextMatrix(1, 1), std::string("12,75"));
        failWithoutData();
        const QString name =
            QString::fromStdString(desktop_->program().find("frmDisNormal")->caption);
        QCOMPARE(contentOf(path(name + " - datos.txt")), QStringLiteral("X\n12.75\n"));
    }

    void theBoxTellsWhereTheyAre() {
        fillNormal();
        QString more;
        fail([&] { more = informativeText(); });
        QCOMPARE(more, QStringLiteral("Hay una copia de lo que estaba abierto en:\n") +
                           QDir::toNativeSeparators(folder().path()));
        QVERIFY(QRegularExpression("^\\d{4}-\\d\\d-\\d\\d \\d\\d\\.\\d\\d\\.\\d\\d$")
                    .match(folder().dirName())
                    .hasMatch());
        QVERIFY(std::abs(QDateTime::fromString(folder().dirName(), "yyyy-MM-dd HH.mm.ss")
                             .secsTo(QDateTime::currentDateTime())) < 60);
    }

    void whereNothingHoldsDataNothingIsWrittenAndNothingSaid() {
        desktop_->open("frmPadre");
        desktop_->open("frmAforoCorren");
        desktop_->open("frmDisNormal");
        QString more = QStringLiteral("?");
        failWithoutData([&] { more = informativeText(); });
        QCOMPARE(more, QString());
        QVERIFY(!QDir(desktop_->copiesFolder()).exists());
    }

    void aFolderThatIsThereIsNotTouched() {
        fillNormal();
        const Copies first = copyAllOpen(desktop_->program(), desktop_->copiesFolder());
        Copies next = copyAllOpen(desktop_->program(), desktop_->copiesFolder());
        // Two within a second share its name.
        for (int i = 0; i < 5 && !next.folder.endsWith(")"); ++i)
            next = copyAllOpen(desktop_->program(), desktop_->copiesFolder());
        QVERIFY(next.folder.endsWith(")"));
        QCOMPARE(QDir(first.folder).entryList(QDir::Files).size(), 3);
        QCOMPARE(QDir(next.folder).entryList(QDir::Files).size(), 3);
    }

    void aFolderThatCannotBeMadeIsToldBehindTheFailuresOwnWords() {
        fillNormal();
        QFile inTheWay(desktop_->copiesFolder());
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        inTheWay.close();
        QString more;
        fail([&] { more = informativeText(); });
        QVERIFY2(more.startsWith("No se pudo copiar:\n"), qPrintable(more));
        QVERIFY2(more.endsWith(": no se puede crear la carpeta"), qPrintable(more));
        QCOMPARE(more.count(u'\n'), 1);
    }

    void whatCannotBeCopiedKeepsNothingElseFromIt() {
        desktop_->open("frmDisNormal");
        // No single holds it.
        desktop_->typeValues({"1e39"});
        desktop_->open("frmDisGumbel");
        desktop_->typeValues({"7"});
        const Copies copies = copyAllOpen(desktop_->program(), desktop_->copiesFolder());
        const QString name =
            QString::fromStdString(desktop_->program().find("frmDisNormal")->caption);
        QCOMPARE(copies.failures, QStringList(name + " - datos.X: Desbordamiento"));
        QVERIFY(copies.words().contains("\n\nNo se pudo copiar:\n" + name + " - datos.X"));
        const QString other = QString::fromStdString(desktop_->window().caption);
        QCOMPARE(files(), QStringList({other + " - datos.X", other + " - datos.txt",
                                       name + " - datos.txt"}));
    }

    void moreRowsThanAWindowReadsAreCopiedAll() {
        desktop_->open("frmDisNormal");
        auto& sheet = dynamic_cast<Worksheet&>(desktop_->window());
        std::vector<std::vector<std::string>> rows;
        for (int i = 1; i <= 600; ++i)
            rows.push_back({std::to_string(i) + ".5"});
        desktop_->session.act([&] { typeRows(desktop_->program(), sheet.grdt, rows); });
        const Cells data = cellsOf(sheet.grdt, 1);
        QCOMPARE(data.size(), std::size_t{600});
        const Copies copies = copyAllOpen(desktop_->program(), desktop_->copiesFolder());
        QVERIFY(copies.failures.isEmpty());
        Reader reader;
        const QString name = QString::fromStdString(sheet.caption);
        QCOMPARE(cellsOf(reader.load("frmDisNormal", path(name + " - datos.X")), 1), data);
    }

private:
    void fillNormal() {
        desktop_->open("frmDisNormal");
        desktop_->typeValues({"1234.567", "1180", "990.25", "1402.5", "1333.125", "1075"});
        desktop_->clickButton("bCalcular");
    }
    /// Ends the program by a return period of 0, whose probability is 1 / 0.
    void fail(std::function<void()> whileOpen = {}) {
        desktop_->expectBox({divisionByZero, "Caudalera", QMessageBox::Critical},
                            std::move(whileOpen));
        Window& normal = *desktop_->program().find("frmDisNormal");
        desktop_->session.act([&] {
            desktop_->program().changeText(dynamic_cast<TextBox&>(*normal.find("txtxt")), "0");
            desktop_->program().click(*normal.find("bQ"));
        });
        QVERIFY(desktop_->program().ended());
    }
    /// Ends it by the mean of no flows, which is 0 / 0.
    void failWithoutData(std::function<void()> whileOpen = {}) {
        desktop_->open("frmCurvaDuracion");
        desktop_->expectBox({divisionByZero, "Caudalera", QMessageBox::Critical},
                            std::move(whileOpen));
        desktop_->clickButton("bCalcular");
        QVERIFY(desktop_->program().ended());
    }
    static QString informativeText() {
        return static_cast<QMessageBox*>(QApplication::activeModalWidget())->informativeText();
    }
    QDir folder() {
        const QDir all(desktop_->copiesFolder());
        const QStringList names = all.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        if (names.size() != 1)
            throw std::runtime_error("not one folder of copies");
        return QDir(all.filePath(names.constFirst()));
    }
    QStringList files() { return folder().entryList(QDir::Files, QDir::Name); }
    QString path(const QString& file) { return folder().filePath(file); }

    std::unique_ptr<DesktopFixture> desktop_;
};

} // namespace caudalera

using caudalera::CopiesTest;
QTEST_MAIN(CopiesTest)
#include "CopiesTest.moc"
