// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgPpReal_ventana.h"

#include <string>

#include "rainfall/dlgImportaTormenta_ventana.h"

namespace rainfall {

dlgPpReal_ventana::dlgPpReal_ventana(forms::Entorno& alrededor, dlgPpReal& registro, dlgPp& tormenta,
                                     QWidget* padre)
    : FormaDeTabla_ventana(alrededor, {"dlgPpReal", TituloDlgPpReal, LeyendasDlgPpReal}, padre),
      f(registro),
      pp(tormenta)
{
    Sigue(f.abierta, &f.foco);
    setLayout(EnPila(
        {EnFila({{Archivos(), 1}, {Datos(), 1}}),
         {MarcoDeTabla(
              f.MSFlexGridTablaPpReal, "MSFlexGridTablaPpReal", "laminaPpReal", [this] { return Vista(f); },
              [this](const forms::Efecto& efecto) { AlAsentar(f, entorno.s, efecto); }),
          1},
         Botones(
             {Boton("cmdVerGrafico", [this] { AbreHietograma(cmdVerGrafico(f, entorno.s)); }),
              Boton("cmdBorraTablaDisPer", [this] { cmdBorraTablaDisPer(f, pp, entorno.s); })},
             [this] { cmdAplicar(f, pp, entorno.s); }, [this] { OKButton(f, pp, entorno.s); })}));
    entorno.AlActivarse(*this, [this] {
        rainfall::AlActivarse(f, pp, entorno.s);
        Muestra();
    });
}

QLayout* dlgPpReal_ventana::Archivos()
{
    QWidget* const archivos = Listado("FilePpReal", f.FilePpReal, forms::Flechas::Mueven,
                                      [this] { FilePpReal_Click(f, entorno.s); });
    QPushButton* const importa = Boton("cmdImporta", [this] { Importa(); });
    return EnRejilla(
        {{Rotulo("lblMiFilePpReal", archivos), EnNegrita(Texto("lblMiFilePpReal", f.lblMiFilePpReal))},
         {archivos},
         {EnFila({Boton("cmdNuevaPpReal", [this] { cmdNuevaPpReal(f, entorno.s); }),
                  HabilitadoSi(importa, [this] { return !f.Protegida; }), Hueco()})}},
        {0, 1});
}

QLayout* dlgPpReal_ventana::Datos()
{
    const auto campo = [this](std::string_view control, std::string& texto) {
        return Campo(control, texto, [this, control] { return AlSalir(f, entorno.s, control); });
    };
    QLineEdit* const DateI = campo("txtDateI", f.tormenta.txtDateI);
    QLineEdit* const TimeI = campo("txtTimeI", f.tormenta.txtTimeI);
    QLineEdit* const DateF = campo("txtDateF", f.tormenta.txtDateF);
    QLineEdit* const TimeF = campo("txtTimeF", f.tormenta.txtTimeF);
    QLineEdit* const Nro = campo("txtNroPpReal", f.txtNroPpReal);
    for (QLineEdit* const fin : {DateF, TimeF})
        HabilitadoSi(fin, [this] { return f.FinalEditable(); });
    HabilitadoSi(Nro, [this] { return !f.FinalEditable(); });
    auto* const paso = Nombra(new QComboBox, "cmbPasot");
    paso->setEditable(true);
    paso->setInsertPolicy(QComboBox::NoInsert);
    paso->setCompleter(nullptr);
    paso->lineEdit()->setReadOnly(true);
    AlMostrar([this, paso] { forms::Pon(*paso, f.itemsPasot, f.cmbPasot); });
    connect(paso, &QComboBox::activated, this, [this](int i) {
        Suceso([this, i] {
            f.cmbPasot = f.itemsPasot[static_cast<std::size_t>(i)];
            cmbPasot_Click(f, entorno.s);
        });
    });
    const auto opciones = Opciones(
        "optNroPpReal", std::to_array({Fila("optNroPpReal_0").leyenda, Fila("optNroPpReal_1").leyenda}),
        f.optNroPpReal, [this](int i) { optNroPpReal_Click(f, i); });
    return EnRejilla({Renglon("txtNotas", Campo("txtNotas", f.tormenta.Notas)),
                      {Rotulo("txtDateI", DateI), DateI, TimeI},
                      {opciones[0]},
                      {opciones[1]},
                      {Rotulo("txtDateF", DateF), DateF, TimeF},
                      Renglon("cmbPasot", paso),
                      Renglon("txtNroPpReal", Nro),
                      {}});
}

void dlgPpReal_ventana::Importa()
{
    dlgImportaTormenta importa;
    if (!rainfall::Abre(importa, entorno.s)) return;
    dlgImportaTormenta_ventana ventana(entorno, importa, this);
    ventana.Abre();
    if (importa.aceptada) TomaImportada(f, entorno.s, importa.tormenta);
}

}  // namespace rainfall
