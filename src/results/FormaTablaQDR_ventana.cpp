// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/FormaTablaQDR_ventana.h"

#include "forms/ImpresionTabla_ventana.h"
#include "forms/Procedencia.h"
#include "results/TablaQDR_ventana.h"

namespace results {

FormaTablaQDR_ventana::FormaTablaQDR_ventana(forms::Entorno& alrededor, std::string_view nombre,
                                             std::string_view titulo, FormaTablaQDR& registro, QWidget* padre)
    : Ventana(alrededor, {nombre, titulo, RotulosTablaQDR}, padre), f(registro)
{
    Sigue(f.abierta);
    franja = new checks::Franja(entorno, checks::Alcance::Serie);
    AlMostrar([this] { franja->Sigue(f.llenados); });
    tabla = new VistaQDR(entorno, f.MSFlexGridTablaSaleQDR, titulo);
    tabla->Componente = [this] { return Componente(); };
    tabla->AlPulsarEncabezado = [this](int columna) { Suceso([&] { AlPulsarEncabezado(f, columna); }); };
    AlMostrar([this] { tabla->Muestra(); });
    entorno.AlActivarse(*this, [this] {
        if (!f.abierta) return;
        Llena();
        Muestra();
    });
}

void FormaTablaQDR_ventana::Dispone(forms::Partes antes)
{
    antes.emplace_back(tabla, 1);
    setLayout(EnPila(
        {franja,
         {EnFila(antes), 1},
         EnFila({Boton("cmdAplicarCambios", [this] { Llena(); }), Hueco(),
                 Boton("cmdImprimir", [this] { Imprime(); }), Boton("OKButton", [this] { OKButton(f); })})}));
}

void FormaTablaQDR_ventana::Abre()
{
    franja->Olvida();
    AbreForma();
    Muestra();
    if (f.abierta) entorno.Presenta(*this);
}

void FormaTablaQDR_ventana::AlCerrar()
{
    OKButton(f);
}

void FormaTablaQDR_ventana::Imprime()
{
    forms::ImprimePlanilla(
        entorno, forms::NombreDeArchivo({.titulo = forms::DeQ(windowTitle()), .componente = Componente()}),
        ComoPlanilla(f.MSFlexGridTablaSaleQDR));
}

}  // namespace results
