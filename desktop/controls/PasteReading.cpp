#include "desktop/controls/PasteReading.h"

#include "desktop/richtext/QtText.h"

#include <QMessageBox>
#include <QPushButton>

namespace caudalera {

bool settleCommas(PastedBlock& block, QWidget& asking) {
    if (!block.undecided())
        return true;
    const PastedBlock::Example example = *block.undecided();
    QMessageBox box(&asking);
    box.setWindowTitle(QStringLiteral("Pegar"));
    box.setTextFormat(Qt::PlainText);
    box.setIcon(QMessageBox::Question);
    box.setText(QStringLiteral("¿Qué número es «%1»?").arg(toQString(example.text)));
    box.setInformativeText(
        QStringLiteral("La coma puede separar los decimales o los miles, y en lo que se pega nada "
                       "lo decide. La respuesta vale para todos los datos."));
    const auto choice = [&box](const char* name, const char* words, const std::string& number) {
        auto* button =
            box.addButton(QString::fromUtf8(words).arg(toQString(number)), QMessageBox::AcceptRole);
        button->setObjectName(QString::fromUtf8(name));
        return button;
    };
    const QPushButton* decimals = choice("decimales", "%1 (coma decimal)", example.withComma);
    const QPushButton* thousands = choice("miles", "%1 (coma de miles)", example.withPoint);
    box.addButton(QStringLiteral("Cancelar"), QMessageBox::RejectRole);
    box.exec();
    if (box.clickedButton() == decimals) {
        block.read(DecimalSign::comma);
    } else if (box.clickedButton() == thousands) {
        block.read(DecimalSign::point);
    } else {
        return false;
    }
    return true;
}

std::optional<QString> pastedIntoField(const QString& text, QWidget& asking) {
    PastedBlock block(text.toStdString());
    if (!block.isSingleNumber())
        return text;
    if (!settleCommas(block, asking))
        return std::nullopt;
    return toQString(block.rows().front().front());
}

} // namespace caudalera
