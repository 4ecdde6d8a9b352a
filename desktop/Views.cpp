#include "desktop/Views.h"

#include "desktop/report/ReportWindow.h"
#include "desktop/windows/AboutView.h"
#include "desktop/windows/CalculatorView.h"
#include "desktop/windows/MainWindow.h"
#include "desktop/windows/WindowView.h"
#include "shell/main/frmCalculadora.h"
#include "shell/main/frmCaudalera.h"
#include "shell/main/frmacerc.h"
#include "shell/report/frmPadre.h"

namespace caudalera {

View* makeView(Session& session, Window& window) {
    if (auto* padre = dynamic_cast<frmPadre*>(&window))
        return new ReportWindow(session, *padre);
    if (auto* principal = dynamic_cast<frmCaudalera*>(&window))
        return new MainWindow(session, *principal);
    if (auto* calculadora = dynamic_cast<frmCalculadora*>(&window))
        return new CalculatorView(session, *calculadora);
    if (auto* acerca = dynamic_cast<frmacerc*>(&window))
        return new AboutView(session, *acerca);
    return new WindowView(session, window);
}

} // namespace caudalera
