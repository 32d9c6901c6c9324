// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <cmath>

#include "frequency/idf/EscribeIdf.h"
#include "report/Filas.h"
#include "report/Memoria.h"

// Texts inside the text.
namespace report {
namespace {

using frequency::idf::Familia;

const model::Tormenta* Entrada(const Fuente& f)
{
    return f.d.tormenta == nullptr ? nullptr : &f.d.tormenta->entrada;
}

const model::Pasos* PasosDe(const Fuente& f)
{
    if (f.d.tormenta != nullptr) return &f.d.tormenta->pasos;
    return f.d.serie == nullptr ? nullptr : &f.d.serie->pasos;
}

std::string Fecha(const Fuente& f)
{
    return f.d.tormenta != nullptr ? f.d.tormenta->cuando : f.d.serie != nullptr ? f.d.serie->cuando : "";
}

std::string Paso(const Fuente& f, std::int16_t model::Pasos::*cual)
{
    return PasosDe(f) == nullptr ? "" : f.n.Con(PasosDe(f)->*cual, 0) + " min";
}

/// "1 UEH", "3 represas".
std::string Cuantos(int n, std::string_view uno, std::string_view varios)
{
    return std::to_string(n) + " " + std::string(n == 1 ? uno : varios);
}

std::string DelResumen(const Fuente& f, std::string_view titulo, std::string_view unidad)
{
    const std::string celda = f.una == nullptr ? "-" : f.CeldaDelResumen(nullptr, titulo, unidad);
    if (celda == "-") return "";
    // No line ends behind a true minus, nor at such a blank.
    return (celda.starts_with('-') ? "−" + celda.substr(1) : celda) + " " + Unidad(unidad);
}

std::string Salidas(const Fuente& f)
{
    std::vector<std::string> nombres;
    const model::Resultados* const r = f.una != nullptr     ? &f.una->r()
                                       : f.serie != nullptr ? &f.serie->r()
                                                            : nullptr;
    for (int k = 1; r != nullptr && k <= std::min<int>(r->NroSalidas, model::MaxSalidas); ++k)
        nombres.push_back(r->Salidas[static_cast<std::size_t>(k)]);
    return Enumera(nombres);
}

std::string Distribucion(const Fuente& f)
{
    const model::Tormenta* const t = Entrada(f);
    if (t == nullptr) return "";
    return t->FormaPp == model::FormaLluvia::Real ? "la de la tormenta registrada"
                                                  : checks::NombreDeDistribucion(t->DistriPp);
}

int CuantosAvisos(const Fuente& f, checks::Gravedad gravedad)
{
    const auto& avisos = f.d.tormenta->avisos;
    return static_cast<int>(std::count_if(avisos.begin(), avisos.end(),
                                          [&](const checks::Hallazgo& h) { return h.gravedad == gravedad; }));
}

/// "1 error, 2 avisos y 3 notas", without those that there aren't.
std::string Avisos(const Fuente& f)
{
    if (f.d.tormenta == nullptr) return "";
    std::vector<std::string> partes;
    const auto agrega = [&](checks::Gravedad gravedad, std::string_view uno, std::string_view varios) {
        if (const int n = CuantosAvisos(f, gravedad); n > 0) partes.push_back(Cuantos(n, uno, varios));
    };
    agrega(checks::Gravedad::Error, "error", "errores");
    agrega(checks::Gravedad::Aviso, "aviso", "avisos");
    agrega(checks::Gravedad::Nota, "nota", "notas");
    return partes.empty() ? "ningún aviso" : Enumera(partes);
}

/// The storm in words, behind "Tormenta: " where it is a typed one.
std::string EnPalabras(const Fuente& f)
{
    if (f.d.tormenta == nullptr) return "";
    constexpr std::string_view Sobra = "Tormenta: ";
    std::string t = f.n.EnTexto(f.d.tormenta->sello.tormenta);
    return t.starts_with(Sobra) ? t.substr(Sobra.size()) : t;
}

int Bien(const Fuente& f)
{
    return static_cast<int>(f.d.casos.size()) - checks::CuantosFuera(f.d.casos);
}

// --- study ---

const Familia* FamiliaDe(const Fuente& f)
{
    return f.estudio.curvas ? f.estudio.curvas->ajuste.familia : nullptr;
}

/// Why the law was taken: the user's words, or the recommendation's.
std::string Motivo(const Fuente& f)
{
    if (f.estudio.Ley() == nullptr) return "";
    const bool elegida = frequency::LeyDeClave(f.estudio.maximos->ley) != nullptr;
    if (!elegida) return f.n.EnTexto(f.estudio.analisis->recomendacion.motivo);
    return f.estudio.maximos->motivo.empty() ? "Fue elegida por el profesional." : f.estudio.maximos->motivo;
}

std::string Origen(const Fuente& f)
{
    if (!f.estudio.curvas) return "";
    const study::Idf& idf = f.estudio.taller.idf;
    if (idf.origen == "coeficientes") return "coeficientes conocidos";
    if (idf.origen == "series") return "máximos anuales de varias duraciones";
    const auto* const desagregacion = f.estudio.curvas->desagregacion;
    return "máximos anuales de un día, desagregados por " +
           (desagregacion == nullptr ? idf.desagregacion : std::string(desagregacion->nombre));
}

/// "la sentencia uno. la sentencia dos."
std::string Juntas(const std::vector<std::string>& frases)
{
    std::string t;
    for (const std::string& frase : frases)
        t += (t.empty() ? "" : " ") + frase;
    return t;
}

/// Whether the storm that was run is the study's, as far as its depth and its duration tell.
std::string Relacion(const Fuente& f)
{
    const model::Tormenta* const t = Entrada(f);
    if (!f.estudio.diseno || t == nullptr) return "";
    const study::TormentaDeDiseno& pedida = f.estudio.taller.tormenta;
    const std::string suya = "P " + f.n.Con(f.estudio.diseno->lamina, 1) + " mm, D " +
                             f.n.Con(pedida.duracion, 0) + " min, R " + f.n.Corta(pedida.recurrencia) +
                             " años";
    constexpr double MedioMilimetro = 0.5;
    const bool es = t->FormaPp != model::FormaLluvia::Real &&
                    std::fabs(t->PpTormenta - f.estudio.diseno->lamina) <= MedioMilimetro &&
                    t->DurTormenta == pedida.duracion;
    if (!es) return "La tormenta corrida no es la de diseño del estudio (" + suya + ").";
    return "La tormenta corrida tiene la lámina y la duración de la de diseño del estudio (" + suya +
           "), al milímetro.";
}

std::string Llana(std::string_view t)
{
    return std::string(t);
}

std::string NombreDelArchivo(const Fuente& f)
{
    const std::size_t separador = f.d.archivoConf.find_last_of("/\\");
    return separador == std::string::npos ? f.d.archivoConf : f.d.archivoConf.substr(separador + 1);
}

// clang-format off
constexpr auto Valores = std::to_array<FilaDeValor>({
    {"proyecto", "el título del proyecto; si no lo tiene, el nombre de su archivo", [](const Fuente& f) {
         const std::string& t = f.d.configuracion.TituloProyecto;
         return !f.e.titulo.empty() ? f.e.titulo : t.empty() ? NombreDelArchivo(f) : t; }},
    {"ubicacion", "la ubicación, de la configuración", [](const Fuente& f) { return f.d.configuracion.Ubicacion; }},
    {"cuenca", "la cuenca, de la configuración", [](const Fuente& f) { return f.d.configuracion.Cuenca; }},
    {"subcuenca", "la subcuenca, de la configuración", [](const Fuente& f) { return f.d.configuracion.Subcuenca; }},
    {"operador", "el operador, de la configuración", [](const Fuente& f) { return f.d.configuracion.Operador; }},
    {"autor", "el autor de la memoria; si no se lo escribió, el operador", [](const Fuente& f) {
         return f.e.autor.empty() ? f.d.configuracion.Operador : f.e.autor; }},
    {"comitente", "a quién se entrega", [](const Fuente& f) { return f.e.comitente; }},
    {"fecha", "la fecha y la hora de la corrida", Fecha},
    {"archivo", "el archivo de la configuración, sin su carpeta", NombreDelArchivo},
    {"version", "la versión del programa", [](const Fuente& f) { return f.d.version; }},
    {"area", "la superficie de la cuenca, suma de las UEHs", [](const Fuente& f) {
         return f.red.ColUEHs.Cuenta() == 0 ? "" : f.n.Con(f.AreaDeCuenca(), 3) + " km²"; }},
    {"uehs", "cuántas UEHs hay", [](const Fuente& f) { return Cuantos(f.red.ColUEHs.Cuenta(), "UEH", "UEHs"); }},
    {"cauces", "cuántos cauces hay", [](const Fuente& f) { return Cuantos(f.red.ColCauces.Cuenta(), "cauce", "cauces"); }},
    {"represas", "cuántas represas hay", [](const Fuente& f) { return Cuantos(f.red.ColRepresas.Cuenta(), "represa", "represas"); }},
    {"lagos", "cuántos lagos hay", [](const Fuente& f) { return Cuantos(f.red.ColLagos.Cuenta(), "lago", "lagos"); }},
    {"salidas", "los componentes por los que sale el agua", Salidas},
    {"tormenta", "la tormenta y los pasos, en palabras", EnPalabras},
    {"lamina", "la lámina de la tormenta", [](const Fuente& f) {
         return Entrada(f) == nullptr ? "" : f.n.Escrita(Entrada(f)->PpTormenta) + " mm"; }},
    {"duracion", "la duración de la tormenta", [](const Fuente& f) {
         return Entrada(f) == nullptr ? "" : f.n.Con(Entrada(f)->DurTormenta, 0) + " min"; }},
    {"recurrencia", "la recurrencia de la tormenta", [](const Fuente& f) {
         return Entrada(f) == nullptr || Entrada(f)->RecTormenta == 0 ? "" : f.n.Con(Entrada(f)->RecTormenta, 0) + " años"; }},
    {"distribucion", "la distribución temporal de la tormenta", Distribucion},
    {"registrada", "el archivo de la tormenta registrada que se corrió", [](const Fuente& f) { return f.d.tormentaReal; }},
    {"paso_modelo", "el paso del modelo", [](const Fuente& f) { return Paso(f, &model::Pasos::PasoPp); }},
    {"paso_caudales", "el paso de los caudales", [](const Fuente& f) { return Paso(f, &model::Pasos::PasoQ); }},
    {"tiempo_agregado", "el tiempo simulado después de la tormenta", [](const Fuente& f) {
         return PasosDe(f) == nullptr ? "" : f.n.Escrita(PasosDe(f)->N0Dur) + " min"; }},
    {"pico", "el caudal máximo de la cuenca", [](const Fuente& f) { return DelResumen(f, "Qp sale", "m3/s"); }},
    {"tiempo_pico", "los minutos hasta ese caudal", [](const Fuente& f) { return DelResumen(f, "tp sale", "min"); }},
    {"volumen", "el volumen que sale de la cuenca", [](const Fuente& f) { return DelResumen(f, "V sale", "m3"); }},
    {"caudal_especifico", "el caudal específico de la cuenca", [](const Fuente& f) { return DelResumen(f, "q esp.", "m3/s/km2"); }},
    {"coeficiente", "el coeficiente de escorrentía de la cuenca", [](const Fuente& f) { return DelResumen(f, "Coef. escorr.", "%"); }},
    {"error_balance", "el error de balance de la cuenca", [](const Fuente& f) { return DelResumen(f, "Error", "%"); }},
    {"avisos", "cuántos errores, avisos y notas dio la corrida", Avisos},
    {"cambios", "qué ha cambiado desde la corrida", [](const Fuente& f) { return f.n.EnTexto(f.d.cambios); }},
    {"serie", "la serie y los pasos, en palabras", [](const Fuente& f) {
         return f.d.serie == nullptr ? "" : f.n.EnTexto(f.d.serie->sello.tormenta); }},
    {"estacion", "la estación de los máximos anuales", [](const Fuente& f) {
         return f.estudio.estacion == nullptr ? "" : f.estudio.estacion->nombre; }},
    {"fuente_maximos", "la fuente de los máximos anuales", [](const Fuente& f) {
         return f.estudio.estacion == nullptr ? "" : f.estudio.estacion->fuente; }},
    {"anios", "cuántos años tiene la serie que se analiza", [](const Fuente& f) {
         return f.estudio.analisis ? Cuantos(static_cast<int>(f.estudio.analisis->muestra.Anios()), "año", "años") : ""; }},
    {"ley", "la ley que se tomó", [](const Fuente& f) { return f.estudio.Ley() == nullptr ? "" : Llana(f.estudio.Ley()->nombre); }},
    {"metodo_ajuste", "el método con que se ajustaron las leyes", [](const Fuente& f) {
         return f.estudio.analisis ? Llana(frequency::NombreDe(f.estudio.analisis->metodo)) : ""; }},
    {"motivo_ley", "por qué se tomó esa ley", Motivo},
    {"fuente_ley", "la fuente de la ley", [](const Fuente& f) { return f.estudio.Ley() == nullptr ? "" : Llana(f.estudio.Ley()->fuente); }},
    {"origen_idf", "de dónde salen las curvas de intensidad", Origen},
    {"familia", "la forma de las curvas", [](const Fuente& f) { return FamiliaDe(f) == nullptr ? "" : Llana(FamiliaDe(f)->nombre); }},
    {"fuente_familia", "la fuente de esa forma", [](const Fuente& f) { return FamiliaDe(f) == nullptr ? "" : Llana(FamiliaDe(f)->fuente); }},
    {"limites_familia", "hasta dónde vale", [](const Fuente& f) { return FamiliaDe(f) == nullptr ? "" : f.n.EnTexto(FamiliaDe(f)->limites); }},
    {"calidad_idf", "qué tan bien ajustan las curvas", [](const Fuente& f) {
         return f.estudio.curvas ? f.n.EnTexto(frequency::idf::TextoDeCalidad(*f.estudio.curvas)) : ""; }},
    {"avisos_idf", "lo que hay que saber de las curvas", [](const Fuente& f) {
         return f.estudio.curvas ? f.n.EnTexto(Juntas(f.estudio.curvas->avisos)) : ""; }},
    {"patron", "el patrón de la tormenta de diseño", [](const Fuente& f) {
         return f.estudio.diseno ? Llana(f.estudio.diseno->patron->nombre) : ""; }},
    {"fuente_patron", "la fuente de ese patrón", [](const Fuente& f) {
         return f.estudio.diseno ? Llana(f.estudio.diseno->patron->fuente) : ""; }},
    {"relacion_diseno", "si la tormenta corrida es la de diseño", Relacion},
    {"casos_bien", "cuántos casos publicados dieron bien", [](const Fuente& f) { return f.d.casos.empty() ? "" : std::to_string(Bien(f)); }},
    {"casos", "cuántos casos publicados se corrieron", [](const Fuente& f) { return f.d.casos.empty() ? "" : Cuantos(static_cast<int>(f.d.casos.size()), "caso", "casos"); }},
    {"huella", "la huella de la corrida de la tormenta", [](const Fuente& f) { return f.d.tormenta == nullptr ? "" : f.d.tormenta->huella; }},
    {"huella_serie", "la huella de la serie", [](const Fuente& f) { return f.d.serie == nullptr ? "" : f.d.serie->huella; }},
    {"orden", "la orden de siro-lote que repite la tormenta", [](const Fuente& f) {
         return f.d.tormenta == nullptr ? "" : OrdenDeLote(*f.d.tormenta, NombreDelArchivo(f), f.d.tormentaReal); }},
    {"orden_serie", "la orden de siro-lote que repite la serie", [](const Fuente& f) {
         return f.d.serie == nullptr ? "" : OrdenDeLote(*f.d.serie, NombreDelArchivo(f)); }},
});

template <typename T>
bool Alguno(const auto& coleccion, T&& es)
{
    return std::any_of(coleccion.begin(), coleccion.end(), std::forward<T>(es));
}

bool Metodo(const Fuente& f, std::string_view metodo)
{
    const auto es = [&](const auto& c) { return c.Metodo == metodo; };
    return Alguno(f.red.ColRepresas, es) || Alguno(f.red.ColLagos, es);
}

bool HayAlturas(const Fuente& f)
{
    return Alguno(f.Embalses(), [&](const auto* c) { return f.ConAlturas(*c); });
}

constexpr auto Condiciones = std::to_array<FilaDeCondicion>({
    {"tormenta", "se corrió una tormenta y llegó a su fin", [](const Fuente& f) { return f.una != nullptr; }},
    {"serie", "se corrió una serie", [](const Fuente& f) { return f.serie != nullptr; }},
    {"varios", "se muestran dos hidrogramas o más", [](const Fuente& f) { return f.elegidos.size() > 1; }},
    {"cambios", "algo ha cambiado desde la corrida", [](const Fuente& f) { return !f.d.cambios.empty(); }},
    {"avisos", "la corrida dio errores, avisos o notas", [](const Fuente& f) { return f.d.tormenta != nullptr && !f.d.tormenta->avisos.empty(); }},
    {"errores", "la corrida dio errores", [](const Fuente& f) { return f.d.tormenta != nullptr && CuantosAvisos(f, checks::Gravedad::Error) > 0; }},
    {"avisos_serie", "la serie dio errores, avisos o notas", [](const Fuente& f) { return f.d.serie != nullptr && !f.d.serie->avisos.empty(); }},
    {"uehs", "la red tiene UEHs", [](const Fuente& f) { return f.red.ColUEHs.Cuenta() > 0; }},
    {"cauces", "la red tiene cauces", [](const Fuente& f) { return f.red.ColCauces.Cuenta() > 0; }},
    {"represas", "la red tiene represas", [](const Fuente& f) { return f.red.ColRepresas.Cuenta() > 0; }},
    {"lagos", "la red tiene lagos", [](const Fuente& f) { return f.red.ColLagos.Cuenta() > 0; }},
    {"embalses", "la red tiene represas o lagos", [](const Fuente& f) { return f.red.ColRepresas.Cuenta() + f.red.ColLagos.Cuenta() > 0; }},
    {"alturas", "la corrida tiene alturas de represas o lagos", HayAlturas},
    {"directa", "hay cauces por propagación directa", [](const Fuente& f) { return Alguno(f.red.ColCauces, [](const model::Cauce& c) { return c.optDirMusk; }); }},
    {"muskingum", "hay cauces por Muskingum", [](const Fuente& f) { return Alguno(f.red.ColCauces, [](const model::Cauce& c) { return !c.optDirMusk; }); }},
    {"piscina", "hay represas o lagos por piscina nivelada", [](const Fuente& f) { return Metodo(f, "Piscina Nivelada"); }},
    {"runge_kutta", "hay represas o lagos por Runge-Kutta", [](const Fuente& f) { return Metodo(f, "Runge Kutta"); }},
    {"embalse_lineal", "hay represas o lagos por Muskingum", [](const Fuente& f) { return Metodo(f, "Muskingum"); }},
    {"recesion", "alguna UEH tiene caudal de base", [](const Fuente& f) { return Alguno(f.red.ColUEHs, [](const model::UEH& u) { return u.Q0Recesion > 0; }); }},
    {"lluvia_uehs", "la lluvia se dio por UEH", [](const Fuente& f) { return Entrada(f) != nullptr && Entrada(f)->FormaPp == model::FormaLluvia::PorUEH; }},
    {"registrada", "se corrió una tormenta registrada", [](const Fuente& f) { return Entrada(f) != nullptr && Entrada(f)->FormaPp == model::FormaLluvia::Real; }},
    {"recurrencia", "la tormenta tiene recurrencia", [](const Fuente& f) { return Entrada(f) != nullptr && Entrada(f)->RecTormenta > 0; }},
    {"personal", "la distribución temporal es una personalizada", [](const Fuente& f) {
         return Entrada(f) != nullptr && Entrada(f)->FormaPp != model::FormaLluvia::Real && Entrada(f)->DistriPp >= model::PrimeraPersonal; }},
    {"frecuencia", "el estudio tiene máximos anuales analizados", [](const Fuente& f) { return f.estudio.analisis.has_value(); }},
    {"idf", "el estudio tiene curvas de intensidad", [](const Fuente& f) { return f.estudio.curvas.has_value(); }},
    {"avisos_idf", "hay algo que saber de esas curvas", [](const Fuente& f) { return f.estudio.curvas && !f.estudio.curvas->avisos.empty(); }},
    {"familia", "esas curvas tienen una forma ajustada o dada", [](const Fuente& f) { return FamiliaDe(f) != nullptr; }},
    {"diseno", "el estudio tiene una tormenta de diseño", [](const Fuente& f) { return f.estudio.diseno.has_value(); }},
    {"derivados", "desde el estudio se escribieron tablas de lluvia", [](const Fuente& f) { return !f.estudio.taller.derivados.empty(); }},
    {"observadas", "el estudio tiene crecidas observadas", [](const Fuente& f) {
         return Alguno(f.estudio.ajuste.eventos, [](const study::Evento& e) { return !e.observaciones.empty(); }); }},
    {"concentracion", "se dieron los datos de los tiempos de concentración", [](const Fuente& f) { return f.e.tc.has_value(); }},
    {"verificacion", "se corrieron los casos publicados", [](const Fuente& f) { return !f.d.casos.empty(); }},
    {"comitente", "se escribió a quién se entrega", [](const Fuente& f) { return !f.e.comitente.empty(); }},
    {"ubicacion", "la configuración dice la ubicación", [](const Fuente& f) { return !f.d.configuracion.Ubicacion.empty(); }},
    {"cuenca", "la configuración dice la cuenca", [](const Fuente& f) { return !f.d.configuracion.Cuenca.empty(); }},
    {"subcuenca", "la configuración dice la subcuenca", [](const Fuente& f) { return !f.d.configuracion.Subcuenca.empty(); }},
    {"fuente_maximos", "la estación dice la fuente de sus máximos", [](const Fuente& f) { return f.estudio.estacion != nullptr && !f.estudio.estacion->fuente.empty(); }},
});

constexpr auto Formulas = std::to_array<FilaDeFormula>({
    {"ley", "la de la ley que se tomó", "No se tomó una ley.", [](const Fuente& f) { return f.estudio.Ley() == nullptr ? std::string_view() : f.estudio.Ley()->formula; }},
    {"familia", "la de las curvas de intensidad", "Las curvas no tienen una fórmula.", [](const Fuente& f) { return FamiliaDe(f) == nullptr ? std::string_view() : FamiliaDe(f)->formula; }},
    {"desagregacion", "la de la desagregación de la lluvia diaria", "No se desagregó la lluvia diaria.", [](const Fuente& f) {
         return f.estudio.curvas && f.estudio.curvas->desagregacion != nullptr ? f.estudio.curvas->desagregacion->formula : std::string_view(); }},
    {"patron", "la del patrón de la tormenta de diseño", "El estudio no tiene una tormenta de diseño.", [](const Fuente& f) {
         return f.estudio.diseno ? f.estudio.diseno->patron->formula : std::string_view(); }},
});
// clang-format on

}  // namespace

std::span<const FilaDeValor> FilasDeValor()
{
    return Valores;
}

std::span<const FilaDeCondicion> FilasDeCondicion()
{
    return Condiciones;
}

std::span<const FilaDeFormula> FilasDeFormula()
{
    return Formulas;
}

}  // namespace report
