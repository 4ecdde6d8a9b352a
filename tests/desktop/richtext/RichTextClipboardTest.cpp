#include "desktop/richtext/RichTextClipboard.h"

#include "desktop/richtext/LayoutLimits.h"
#include "shell/richtext/RichText.h"

#include <QMimeData>
#include <QTest>

using namespace caudalera;

namespace {

RichText sample() {
    Paragraph heading;
    heading.format = {Alignment::center, 200, 200};
    heading.runs = {{"Resultados", {true, false, false, "", 0, -1}}};
    Paragraph row;
    row.runs = {{"1\t122.0\tñ", {}}};
    return RichText({heading, row});
}

RichText pasted(const QMimeData& data) {
    return readRtf(richtext::fromClipboard(data));
}

QString textOf(const RichText& text) {
    return QString::fromStdString(text.text());
}

} // namespace

class RichTextClipboardTest : public QObject {
    Q_OBJECT

private slots:
    void itCarriesEveryForm() {
        const std::string rtf = writeRtf(sample());
        const auto data = richtext::toClipboard(rtf);
        QVERIFY(data->hasText() && data->hasHtml());
        QCOMPARE(data->data("text/rtf").toStdString(), rtf);
        QCOMPARE(data->data("application/rtf").toStdString(), rtf);
        QCOMPARE(data->text(), QString::fromUtf8("Resultados\n1\t122.0\tñ"));
        QVERIFY(data->html().contains("center"));
        QVERIFY(data->html().contains(QString::fromUtf8("ñ")));
        QVERIFY(data->data("image/png").isEmpty());
    }

    void theNameOnWindowsIsThere() {
        const QString name =
            QStringLiteral("application/x-qt-windows-mime;value=\"Rich Text Format\"");
        const auto data = richtext::toClipboard(writeRtf(sample()));
#ifdef Q_OS_WIN
        QVERIFY(data->hasFormat(name));
#else
        QVERIFY(!data->hasFormat(name));
#endif
        QMimeData windows;
        windows.setData(name, "{\\rtf1 de fuera}");
        windows.setText("llano");
        QCOMPARE(textOf(pasted(windows)), QStringLiteral("de fuera"));
    }

    void whatItCarriesComesBack() {
        const auto data = richtext::toClipboard(writeRtf(sample()));
        QVERIFY(pasted(*data).paragraphs() == sample().paragraphs());
    }

    void aPageComesInWithItsFormats() {
        QMimeData page;
        page.setHtml(
            "<p align='right'>uno <b>dos</b><br>tres<img src='file:///x.png'></p><p>c</p>");
        page.setText("llano");
        const RichText text = pasted(page);
        QCOMPARE(textOf(text), QStringLiteral("uno dos\ntres\nc"));
        QVERIFY(text.paragraphs()[0].format.alignment == Alignment::right);
        QVERIFY(text.paragraphs()[0].runs[1].format.bold);
    }

    void aTableComesInByRows() {
        QMimeData page;
        page.setHtml("<p>Caudales</p><table><tr><td>1</td><td>12.5</td></tr>"
                     "<tr><td></td><td><p>a</p><p>b</p></td></tr></table>");
        QStringList rows = textOf(pasted(page)).split(u'\n');
        rows.removeAll(QString());
        QCOMPARE(rows, (QStringList{"Caudales", "1\t12.5", "\ta b"}));
    }

    void aPagePastAllLimitsIsPlainText() {
        QMimeData page;
        page.setHtml(QString(static_cast<qsizetype>(richtext::mostCharacters) + 1, u'x'));
        page.setText("llano");
        QCOMPARE(richtext::fromClipboard(page), std::string("llano"));
    }

    void plainTextStaysAsItIs() {
        QMimeData plain;
        plain.setText(QStringLiteral("a\n{b}"));
        QCOMPARE(richtext::fromClipboard(plain), std::string("a\n{b}"));
        QCOMPARE(richtext::fromClipboard(QMimeData()), std::string());
    }
};

QTEST_MAIN(RichTextClipboardTest)
#include "RichTextClipboardTest.moc"
