#include "shell/Program.h"

#include "evapotranspiration/frmPenman.h"
#include "fitting/frmDisNormal.h"
#include "peakflow/frmQmaxRacional.h"
#include "regression/frmEjRegSimple.h"
#include "stats/frmParamEsta.h"

namespace caudalera {

namespace {

template <typename Form>
std::unique_ptr<Window> create(Program& program) {
    return std::make_unique<Form>(program);
}

} // namespace

const std::vector<WindowEntry>& ventanas() {
    static const std::vector<WindowEntry> entries = {
        {"frmParamEsta", create<frmParamEsta>}, {"frmEjRegSimple", create<frmEjRegSimple>},
        {"frmDisNormal", create<frmDisNormal>}, {"frmQmaxRacional", create<frmQmaxRacional>},
        {"frmPenman", create<frmPenman>},
    };
    return entries;
}

} // namespace caudalera
