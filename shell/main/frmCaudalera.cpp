#include "shell/main/frmCaudalera.h"

#include "shell/window/Program.h"

namespace caudalera {

frmCaudalera::frmCaudalera(Program& program)
    : Window(program, "frmCaudalera",
             "Caudalera, software para cálculos hidrológicos y estadísticos aplicados a la "
             "hidrología") {
    bsalir.onClick = [this] { this->program().end(); };

    MenuEntry& mpara = title("mpara", "Parámetros Estadísticos");
    opens(mpara, "mparanoagru", "Datos no agrupados", "frmParamEsta");
    opens(mpara, "mparaagru", "Datos agrupados", "frmParEstAgru");
    opens(mpara, "mparadistri", "Distribución de frecuencia", "frmDistriFre");
    mpara.entries.push_back(nullptr);
    entry(mpara, "mparasalir", "&Salir").onClick = [this] { this->program().end(); };

    MenuEntry& mregre = title("mregre", "&Regresión");
    opens(mregre, "mnuregreLineal", "Regresión &lineal", "frmRegreLineal");
    opens(mregre, "mregresimple", "Regresión &simple", "frmEjRegSimple");
    mregre.entries.push_back(nullptr);
    opens(mregre, "mregremulti2", "Regresión múltiple &2 var. independientes", "frmRegMul2Var");
    opens(mregre, "mregremul3", "Regresión múltiple &3 var. independientes", "frmRegMul3Var");
    mregre.entries.push_back(nullptr);
    opens(mregre, "mregrepoli2", "Regresión &polinomial 2° grado", "frmRegPoli2Gra");
    opens(mregre, "mregrepoli3", "Regresión polinomial 3° &grado", "frmRegPoli3Gra");

    MenuEntry& mdistri = title("mdistri", "&Distribuciones");
    opens(mdistri, "mdistrinormal", "&Normal", "frmDisNormal");
    opens(mdistri, "mdistrinlog2para", "LogNormal 2 parámetros", "frmDisLogNormal2");
    opens(mdistri, "mdistrilog3", "LogNormal 3 parámetros", "frmDisLogNormal3");
    mdistri.entries.push_back(nullptr);
    opens(mdistri, "mdistrgam2", "Gamma 2 parámetros", "frmDisGamma2par");
    opens(mdistri, "mdistrigam3", "Gamma 3 parámetros", "frmDisGamma3par");
    opens(mdistri, "mdistrilogPearson", "LogPearson tipo III", "frmDisLogPearson3");
    mdistri.entries.push_back(nullptr);
    opens(mdistri, "mdistriGumbel", "Gumbel", "frmDisGumbel");
    opens(mdistri, "mdistrilogGumbel", "LogGumbel", "frmDisLogGumbel");

    MenuEntry& mcurvaca = title("mcurvaca", "Curvas características");
    opens(mcurvaca, "mcurvacavaresta", "Curva de variación estacional", "frmVariacionEsta");
    opens(mcurvaca, "mcurvacadura", "Curva de duración", "frmCurvaDuracion");

    MenuEntry& mpreci = title("mpreci", "Precipitación");
    opens(mpreci, "mprecitormen", "Análisis tormenta", "frmAnalisisTor");
    opens(mpreci, "mnupreciintmax", "Cálculo intensidad máxima", "frmIntensidadMax");
    mpreci.entries.push_back(nullptr);
    opens(mpreci, "mpreciprom", "Promedio aritmético", "frmPromArit");
    opens(mpreci, "mprepoligono", "Polígono de Thiessen", "frmThiessen");
    opens(mpreci, "mpreisoyeta", "Isoyetas", "frmIsoyeta");

    MenuEntry& maforo = title("maforo", "Aforo");
    opens(maforo, "maforocorren", "Correntómetro", "frmAforoCorren");

    MenuEntry& mmaxi = title("mmaxi", "Caudales máximos");
    opens(mmaxi, "mmaxeraci", "Racioanal", "frmQmaxRacional");
    opens(mmaxi, "mmaxemmacmath", "Mac Math", "frmQmaxMacMath");
    mmaxi.entries.push_back(nullptr);
    opens(mmaxi, "mmaxestgumbel", "Gumbel", "frmQmaxGumbel");
    opens(mmaxi, "maxestnash", "Nash", "frmQmaxNash");

    MenuEntry& mevapo = title("mevapo", "Evapotranspiración");
    opens(mevapo, "mevthorn", "Thornthwaite", "frmThornthwaite");
    opens(mevapo, "mevablaney", "Blaney-Criddle", "frmBlaneyCriddle");
    opens(mevapo, "mevapenman", "Penman", "frmPenman");
    opens(mevapo, "mevaHargreaves", "Hargreaves", "frmHargreaves");
    mevapo.entries.push_back(nullptr);
    opens(mevapo, "mevabalance", "Balance hídrico", "frmBalanceHidro");

    MenuEntry& mayuda = title("mayuda", "Ayuda");
    entry(mayuda, "mayuayu", "Ayuda").onClick = [this] { ayuda(); };
    mayuda.entries.push_back(nullptr);
    opens(mayuda, "mayuacerca", "Acerca de Caudalera", "frmacerc");
}

MenuEntry& frmCaudalera::title(const char* name, const char* text) {
    MenuEntry& entry = entries_.emplace_back(*this, name, text);
    menuBar.push_back(&entry);
    return entry;
}

MenuEntry& frmCaudalera::entry(MenuEntry& below, const char* name, const char* text) {
    MenuEntry& entry = entries_.emplace_back(*this, name, text);
    below.entries.push_back(&entry);
    return entry;
}

void frmCaudalera::opens(MenuEntry& below, const char* name, const char* text, const char* window) {
    MenuEntry& added = entry(below, name, text);
    added.enabled = program().knows(window);
    added.onClick = [this, window] { program().show(window); };
}

void frmCaudalera::ayuda() {
    if (!platform().startProcess(ordenAyuda))
        mensaje(sinAyuda);
}

} // namespace caudalera
