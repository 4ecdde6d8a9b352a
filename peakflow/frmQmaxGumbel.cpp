#include "peakflow/frmQmaxGumbel.h"

#include "peakflow/caudalGumbel.h"

namespace caudalera {

namespace {

AnnualPeaksTexts textos() {
    return {
        .dibujo = "gumbel",
        .encabezados = {"N° años disponibles", "Qm", "SQ", "YN", "SN", "Qmáx", "DeltaQ",
                        "IntervaloQ", "Qdiseño"},
        .lineasReporte =
            {"     Número de años disponibles: ", "             Promedio Q:                 ",
             "          Desviación estándar Q:      ", "            Parámetro YN:               ",
             "            Parámetro SN:               ",
             "             Q máximo:                   ",
             "               Delta Q:                    ",
             "          Intervalo variación Q:      "},
        .guionesReporte = 130,
        .cierreReporte = "El caudal de diseño por Gumbel, para un período de retorno de ",
    };
}

} // namespace

frmQmaxGumbel::frmQmaxGumbel(Program& program)
    : AnnualPeaksWindow(program, "frmQmaxGumbel",
                        "Cálculo de caudal de diseño utilizando la distribución Gumbel", textos()) {
    disponer({layout::control(Picture1).stretched(), layout::fields({txtTdato})});
}

void frmQmaxGumbel::disenar(Real T) {
    const CaudalGumbel c = caudalGumbel(leerOrdenados(), T);
    escribirDiseno({c.Qm, c.SQ, c.YN, c.SN}, c.diseno);
}

} // namespace caudalera
