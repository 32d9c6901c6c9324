// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/dlgImportaObservada.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

#include "forms/CampoNumerico.h"
#include "forms/MomentoDeRegistro.h"
#include "model/Avisos.h"
#include "model/Numeros.h"
#include "model/Siro.h"

namespace calibration {
namespace {

constexpr std::size_t FilasMostradas = 1000;

std::string Numero(double x)
{
    return model::NumeroATexto(x);
}

std::string_view NombreDelTiempo(ClaseDeTiempo clase)
{
    if (clase == ClaseDeTiempo::FechaYHora) return "Fecha y hora.";
    return clase == ClaseDeTiempo::HorasYMinutos ? "Horas y minutos desde el inicio de la tormenta."
                                                 : "Un número desde el inicio de la tormenta.";
}

void PonTablas(dlgImportaObservada& f)
{
    const ImportacionDeObservada& i = f.importacion;
    const bool nivel = UnidadDe(f.pedido.unidad).magnitud == "nivel";
    forms::Planilla valores{{std::string(TituloDlgImportaObservada), f.lblArchivo},
                            {{"Fecha y hora", true}, {"Minuto"}, {nivel ? "Nivel [m]" : "Caudal [m3/s]"}},
                            {}};
    for (std::size_t k = 0; k < std::min(i.puntos.size(), FilasMostradas); ++k) {
        const auto segundo = static_cast<std::int64_t>(i.puntos[k].minuto * 60);
        valores.filas.push_back({i.inicio ? TextoDeMomento(*i.inicio + segundo) : std::string(),
                                 Numero(i.puntos[k].minuto), Numero(i.puntos[k].valor)});
    }
    forms::PonFilas(f.tblValores, std::move(valores));
    forms::Planilla dudosos{{std::string(TituloDlgImportaObservada), f.lblArchivo},
                            {{"Renglón"}, {"Dice", true}, {"Qué se hace", true}},
                            {}};
    for (const forms::RenglonDudoso& d : i.dudosos)
        dudosos.filas.push_back({std::to_string(d.nro), d.texto, d.hecho});
    forms::PonFilas(f.tblDudosos, std::move(dudosos));
}

void PonGrafico(dlgImportaObservada& f)
{
    forms::Grafico g;
    g.tipo = forms::TipoGrafico::Linea;
    g.ejeX = "minutos";
    g.magnitudX = "t";
    g.ejeY = UnidadDe(f.pedido.unidad).magnitud == "nivel" ? "Nivel [m]" : "Caudal [m3/s]";
    forms::Serie serie{.tipo = forms::TipoSerie::Linea2D};
    for (const study::Punto& p : f.importacion.puntos) {
        g.categorias.push_back(Numero(p.minuto));
        g.abscisas.push_back(p.minuto);
        serie.celdas.push_back(p.valor);
    }
    if (!serie.celdas.empty()) g.series.push_back(std::move(serie));
    f.Grafico = std::move(g);
}

void Lee(dlgImportaObservada& f)
{
    f.importacion = ImportaObservada(f.bytes, f.pedido);
    const ImportacionDeObservada& i = f.importacion;
    f.columnas.clear();
    for (const ColumnaDeValores& c : i.columnas)
        f.columnas.push_back(c.nombre);
    f.columna = static_cast<int>(i.columna);
    f.lblTiempo = i.motivo.empty() ? NombreDelTiempo(i.tiempo) : std::string_view();
    f.lblAvisos = i.motivo;
    for (const std::string& aviso : i.avisos)
        f.lblAvisos.append(f.lblAvisos.empty() ? "• " : "\n• ").append(aviso);
    PonTablas(f);
    PonGrafico(f);
}

void PonUnidad(dlgImportaObservada& f, std::string_view clave)
{
    f.pedido.unidad = clave;
    f.unidad = static_cast<int>(&UnidadDe(clave) - Unidades().data());
}

/// The unit that the heading of the column tells; else the one in force.
void TomaUnidad(dlgImportaObservada& f)
{
    if (f.importacion.columnas.empty()) return;
    const std::string_view clave = UnidadEnTexto(f.importacion.columnas[f.importacion.columna].nombre);
    if (clave.empty() || clave == f.pedido.unidad) return;
    PonUnidad(f, clave);
    Lee(f);
}

void Comienza(dlgImportaObservada& f, const dlgAjuste& ajuste)
{
    const study::Evento* const e = EventoEnMano(ajuste);
    const study::Observacion* const o = ObservacionEnMano(ajuste);
    for (const Unidad& u : Unidades())
        f.unidades.emplace_back(u.clave);
    PonUnidad(f, o != nullptr && o->magnitud == "nivel" ? "m" : "m3/s");
    if (e != nullptr) f.pedido.inicio = forms::MomentoDeRegistro(e->inicio);
    f.abierta = true;
    Lee(f);
    TomaUnidad(f);
}

/// As it is before anything was opened. By a name of its own: g++ 12 takes the texts of one without for
/// unset.
void Vacia(dlgImportaObservada& f)
{
    dlgImportaObservada vacia;
    f = std::move(vacia);
}

}  // namespace

bool AbreArchivo(dlgImportaObservada& f, const dlgAjuste& ajuste, const model::Siro& s)
{
    const std::string ruta = s.Anfitrion.EligeArchivo("Importar valores observados",
                                                      "Textos con valores |*.csv *.txt *.dat *.tsv");
    if (ruta.empty()) return false;
    Vacia(f);
    if (!model::Sentencia([&] { f.bytes = s.Disco.Lee(ruta); }, model::AvisaArchivo(s))) return false;
    f.lblArchivo = ruta;
    Comienza(f, ajuste);
    return true;
}

void AbreTexto(dlgImportaObservada& f, const dlgAjuste& ajuste, std::string texto)
{
    Vacia(f);
    f.bytes = std::move(texto);
    f.lblArchivo = "lo que se copió";
    Comienza(f, ajuste);
}

void cmbColumna_Click(dlgImportaObservada& f, int cual)
{
    if (cual < 0 || std::cmp_greater_equal(cual, f.importacion.columnas.size())) return;
    f.pedido.columna = f.importacion.columnas[static_cast<std::size_t>(cual)].campo;
    Lee(f);
    TomaUnidad(f);
}

void cmbUnidad_Click(dlgImportaObservada& f, int cual)
{
    if (cual < 0 || std::cmp_greater_equal(cual, Unidades().size())) return;
    PonUnidad(f, Unidades()[static_cast<std::size_t>(cual)].clave);
    Lee(f);
}

void cmbTiempo_Click(dlgImportaObservada& f, int cual)
{
    f.tiempo = cual;
    f.pedido.enHoras = cual == 1;
    Lee(f);
}

bool txtTiempo_AlSalir(dlgImportaObservada& f, const model::Siro& s)
{
    const auto desde = forms::NumeroDeCampo(f.txtDesde), hasta = forms::NumeroDeCampo(f.txtHasta);
    const bool vale = (desde || f.txtDesde.empty()) && (hasta || f.txtHasta.empty()) &&
                      (!desde || !hasta || *desde <= *hasta);
    if (!vale) {
        forms::MuestraRechazo(
            s, forms::Rechazo::Exclamacion,
            "Desde y hasta son minutos, el primero no mayor que el segundo; pueden faltar.");
        return false;
    }
    if (desde == f.pedido.desde && hasta == f.pedido.hasta) return true;
    f.pedido.desde = desde;
    f.pedido.hasta = hasta;
    Lee(f);
    return true;
}

void OKButton(dlgImportaObservada& f, dlgAjuste& ajuste)
{
    const ImportacionDeObservada& i = f.importacion;
    const std::string_view magnitud = UnidadDe(f.pedido.unidad).magnitud;
    Cambia(ajuste, "Importar valores observados", [&](study::Ajuste& a) {
        study::Evento& e = EventoDe(ajuste, a);
        study::Observacion& o = ObservacionDe(ajuste, a);
        if (e.inicio.empty() && i.inicio) e.inicio = TextoDeMomento(*i.inicio);
        o.puntos = i.puntos;
        o.magnitud = magnitud;
    });
    f.aceptada = true;
    f.abierta = false;
}

void CancelButton(dlgImportaObservada& f)
{
    f.abierta = false;
}

}  // namespace calibration
