#include "app/registry.h"

#include "curves/frmCurvaDuracion.h"
#include "curves/frmVariacionEsta.h"
#include "evapotranspiration/frmBalanceHidro.h"
#include "evapotranspiration/frmBlaneyCriddle.h"
#include "evapotranspiration/frmHargreaves.h"
#include "evapotranspiration/frmPenman.h"
#include "evapotranspiration/frmThornthwaite.h"
#include "fitting/frmDisGamma2par.h"
#include "fitting/frmDisGamma3par.h"
#include "fitting/frmDisGumbel.h"
#include "fitting/frmDisLogGumbel.h"
#include "fitting/frmDisLogNormal2.h"
#include "fitting/frmDisLogNormal3.h"
#include "fitting/frmDisLogPearson3.h"
#include "fitting/frmDisNormal.h"
#include "gauging/frmAforoCorren.h"
#include "peakflow/frmQmaxGumbel.h"
#include "peakflow/frmQmaxMacMath.h"
#include "peakflow/frmQmaxNash.h"
#include "peakflow/frmQmaxRacional.h"
#include "precipitation/frmAnalisisTor.h"
#include "precipitation/frmIntensidadMax.h"
#include "precipitation/frmIsoyeta.h"
#include "precipitation/frmPromArit.h"
#include "precipitation/frmThiessen.h"
#include "regression/frmEjRegSimple.h"
#include "regression/frmRegMul2Var.h"
#include "regression/frmRegMul3Var.h"
#include "regression/frmRegPoli2Gra.h"
#include "regression/frmRegPoli3Gra.h"
#include "regression/frmRegreLineal.h"
#include "shell/main/frmCalculadora.h"
#include "shell/main/frmCaudalera.h"
#include "shell/main/frmacerc.h"
#include "shell/report/frmPadre.h"
#include "stats/frmDistriFre.h"
#include "stats/frmParEstAgru.h"
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
        {"frmCaudalera", create<frmCaudalera>},
        {"frmPadre", create<frmPadre>},
        {"frmacerc", create<frmacerc>},
        {"frmCalculadora", create<frmCalculadora>},
        {"frmParamEsta", create<frmParamEsta>},
        {"frmParEstAgru", create<frmParEstAgru>},
        {"frmDistriFre", create<frmDistriFre>},
        {"frmRegreLineal", create<frmRegreLineal>},
        {"frmEjRegSimple", create<frmEjRegSimple>},
        {"frmRegMul2Var", create<frmRegMul2Var>},
        {"frmRegMul3Var", create<frmRegMul3Var>},
        {"frmRegPoli2Gra", create<frmRegPoli2Gra>},
        {"frmRegPoli3Gra", create<frmRegPoli3Gra>},
        {"frmDisNormal", create<frmDisNormal>},
        {"frmDisLogNormal2", create<frmDisLogNormal2>},
        {"frmDisLogNormal3", create<frmDisLogNormal3>},
        {"frmDisGamma2par", create<frmDisGamma2par>},
        {"frmDisGamma3par", create<frmDisGamma3par>},
        {"frmDisLogPearson3", create<frmDisLogPearson3>},
        {"frmDisGumbel", create<frmDisGumbel>},
        {"frmDisLogGumbel", create<frmDisLogGumbel>},
        {"frmVariacionEsta", create<frmVariacionEsta>},
        {"frmCurvaDuracion", create<frmCurvaDuracion>},
        {"frmAnalisisTor", create<frmAnalisisTor>},
        {"frmIntensidadMax", create<frmIntensidadMax>},
        {"frmPromArit", create<frmPromArit>},
        {"frmThiessen", create<frmThiessen>},
        {"frmIsoyeta", create<frmIsoyeta>},
        {"frmAforoCorren", create<frmAforoCorren>},
        {"frmQmaxRacional", create<frmQmaxRacional>},
        {"frmQmaxMacMath", create<frmQmaxMacMath>},
        {"frmQmaxGumbel", create<frmQmaxGumbel>},
        {"frmQmaxNash", create<frmQmaxNash>},
        {"frmThornthwaite", create<frmThornthwaite>},
        {"frmBlaneyCriddle", create<frmBlaneyCriddle>},
        {"frmPenman", create<frmPenman>},
        {"frmHargreaves", create<frmHargreaves>},
        {"frmBalanceHidro", create<frmBalanceHidro>},
    };
    return entries;
}

} // namespace caudalera
