#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QString>
#include <Qt>

class QApplication;
class QWidget;

namespace caudalera::style {

/// Fusion with the program's palette and the few rules on top of it.
void apply(QApplication& application);

/// The header of grids, headings, the first series.
QColor accent();
/// The same as the ground of a button, which the style shades into a lighter one.
QColor buttonAccent();
QColor accentText();
/// Ground of fixed cells, of the exit button.
QColor paleAccent();
/// Ground of the cover drawing, also around it.
QColor coverGround();
/// Ground of fields that hold results.
QColor calmField();
/// Ground and text of results that are older than the data: 5 : 1 between them, and more than
/// 4.5 : 1 on the grounds of fixed and selected cells.
QColor staleGround();
QColor staleText();
/// Over a chart: its captions keep 5 : 1.
QColor staleVeil();
/// Ground of a cell while it is being edited.
QColor editedCell();
/// Ground of selected cells.
QColor selection();
/// Rules and grid lines.
QColor lines();

/// Colours that differ in lightness as well, to be told apart with `seriesPen` on a printed page;
/// they repeat after the last one.
QColor seriesColor(int i);
Qt::PenStyle seriesPen(int i);

/// Letters of one width, in the size that the system gives them.
QFont fixedFont();

/// The spacing unit, 8 px at the base type size; grows with the type.
int unit();
/// Room between what belongs together: half a unit.
int halfUnit();

/// Icon of a button by its name without the leading b ("Calcular"), with its hover drawing; empty
/// if there is no drawing of that name.
QIcon icon(const QString& name);
/// Resource of a drawing ("portada"), whether it exists or not.
QString drawingPath(const QString& name);

} // namespace caudalera::style
