// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <cmath>
#include <map>

#include "model/Configuracion.h"
#include "report/Filas.h"

// What the study says: maxima, laws, curves, design storm, observed floods.
namespace report {
namespace {

using frequency::AjusteDeLey;
using frequency::Prueba;

constexpr double MinutosPorHora = 60;

/// "24 h", "30 min".
std::string Duracion(const Fuente& f, double minutos)
{
    const bool horas = minutos >= 2 * MinutosPorHora && std::fmod(minutos, MinutosPorHora) == 0;
    return horas ? f.n.Corta(minutos / MinutosPorHora) + " h" : f.n.Corta(minutos) + " min";
}

/// The same of a series: what is read once a day isn't yet the most of any 24 hours.
std::string Duracion(const Fuente& f, const study::SerieDeMaximos& s)
{
    constexpr double Dia = 1440;
    return s.lecturaDiaria && s.duracion == Dia ? "1 día" : Duracion(f, s.duracion);
}

/// That of a law's quantiles, which a factor may have brought from one to the other.
std::string Duracion(const Fuente& f, const frequency::idf::LeyDeDuracion& l)
{
    for (const study::SerieDeMaximos& s : f.estudio.estacion->series)
        if (s.duracion == l.duracion && s.lecturaDiaria && l.factor == 1) return Duracion(f, s);
    return l.factor < 1 ? "1 día" : Duracion(f, l.duracion);
}

/// The ticked ones of the configuration; those that it begins with where none is.
template <typename Lista, typename Todas, typename Defecto>
std::vector<double> Elegidas(const Lista& lista, const Todas& todas, const Defecto& defecto)
{
    std::vector<double> v;
    for (std::size_t i = 1; i < lista.size(); ++i)
        v.push_back(lista[i]);
    for (std::size_t i = 0; lista.size() <= 1 && i < todas.size(); ++i)
        if (defecto[i] == 1) v.push_back(todas[i]);
    return v;
}

std::vector<double> Recurrencias(const Fuente& f)
{
    return Elegidas(f.d.configuracion.ListaRec, model::Recurrencias, model::RecurrenciasDefecto);
}

std::vector<double> Duraciones(const Fuente& f)
{
    return Elegidas(f.d.configuracion.ListaDur, model::Duraciones, model::DuracionesDefecto);
}

// --- maxima and laws ---

/// A long table of few columns as several side by side.
void Pliega(Tabla& t)
{
    constexpr std::size_t Largas = 15, Veces = 4;
    if (t.columnas.size() > 2 || t.filas.size() < Largas) return;
    const std::vector<ColumnaDeTabla> columnas = t.columnas;
    const std::size_t alto = (t.filas.size() + Veces - 1) / Veces;
    for (std::size_t vez = 1; vez < Veces; ++vez) {
        t.columnas.insert(t.columnas.end(), columnas.begin(), columnas.end());
        for (std::size_t k = 0; k < alto; ++k) {
            const std::size_t de = vez * alto + k;
            const std::vector<std::string> nada(columnas.size());
            const std::vector<std::string> suyas = de < t.filas.size() ? t.filas[de] : nada;
            t.filas[k].insert(t.filas[k].end(), suyas.begin(), suyas.end());
        }
    }
    t.filas.resize(alto);
}

std::vector<Tabla> Maximos(const Fuente& f)
{
    if (f.estudio.estacion == nullptr) return {};
    Tabla t{.titulo = "Máximos anuales de " + f.estudio.estacion->nombre,
            .columnas = {Encabezado("Año", "", false)}};
    std::map<int, std::vector<std::string>> porAnio;
    std::size_t columna = 0;
    for (const study::SerieDeMaximos& s : f.estudio.estacion->series) {
        t.columnas.push_back(Encabezado(Duracion(f, s), "mm", false));
        ++columna;
        for (const study::Maximo& m : s.maximos) {
            porAnio[m.anio].resize(columna, "-");
            porAnio[m.anio].back() = f.n.Corta(m.valor);
        }
    }
    for (auto& [anio, valores] : porAnio) {
        valores.resize(columna, "-");
        std::vector<std::string>& fila = t.filas.emplace_back();
        fila.push_back(std::to_string(anio));
        fila.insert(fila.end(), valores.begin(), valores.end());
    }
    Pliega(t);
    return Sola(std::move(t));
}

// clang-format off
constexpr auto DePruebas = std::to_array<ColumnaDe<Prueba>>({
    {"Prueba", "", true, [](const Fuente&, const Prueba& p) { return std::string(p.nombre); }},
    {"Estadístico", "", false, [](const Fuente& f, const Prueba& p) { return std::string(p.simbolo) + " = " + f.n.Corta(p.estadistico); }},
    {"p", "", false, [](const Fuente& f, const Prueba& p) { return f.n.Con(p.p, 3, false); }},
    {"Veredicto", "", true, [](const Fuente& f, const Prueba& p) { return f.n.EnTexto(p.veredicto); }},
});
// clang-format on

std::vector<Tabla> Pruebas(const Fuente& f)
{
    if (!f.estudio.analisis) return {};
    return Sola(TablaDe<Prueba>(f, "Pruebas de la muestra de " + Duracion(f, *f.estudio.maximos),
                                std::span(DePruebas), f.estudio.analisis->pruebas));
}

std::vector<Tabla> Leyes(const Fuente& f)
{
    if (!f.estudio.analisis) return {};
    constexpr auto Muestra = std::to_array<double>({10, 25, 50, 100});
    const frequency::Analisis& a = *f.estudio.analisis;
    Tabla t{.titulo = "Leyes ajustadas a los máximos de " + Duracion(f, *f.estudio.maximos) + ", por " +
                      std::string(frequency::NombreDe(a.metodo)),
            .columnas = {Encabezado("Ley", "", true), Encabezado("Parámetros", "", true),
                         Encabezado("AICc", "", false), Encabezado("A^{2}", "", false)}};
    for (const double R : Muestra)
        t.columnas.push_back(Encabezado("R " + f.n.Con(R, 0), "mm", false));
    for (const AjusteDeLey& l : a.ajustes) {
        if (!l.estimado.p) continue;
        std::string parametros;
        for (std::size_t i = 0; i < l.ley->cuantos; ++i)
            parametros += (i > 0 ? "; " : "") + std::string(l.ley->parametros[i].simbolo) + " = " +
                          f.n.Corta((*l.estimado.p)[i]);
        std::vector<std::string>& fila = t.filas.emplace_back();
        fila = {std::string(l.ley->nombre) + (l.ley == f.estudio.Ley() ? " (tomada)" : ""), parametros,
                f.n.Con(l.criterios.aicc, 2), f.n.Con(l.bondad.ad, 3)};
        for (const double R : Muestra)
            fila.push_back(f.n.Con(frequency::CuantilDe(l, R), 1));
    }
    t.nota = "AICc: criterio de Akaike corregido; A²: Anderson-Darling. Los menores son mejores.";
    return Sola(std::move(t));
}

std::vector<Tabla> Cuantiles(const Fuente& f)
{
    if (!f.estudio.curvas || f.estudio.curvas->leyes.empty()) return {};
    const auto& leyes = f.estudio.curvas->leyes;
    Tabla t{.titulo = "Lámina de cada recurrencia por la ley tomada",
            .columnas = {Encabezado("Recurrencia", "años", false)},
            .nota = "Leyes:"};
    for (const auto& l : leyes) {
        t.columnas.push_back(Encabezado(Duracion(f, l), "mm", false));
        t.nota += std::string(&l == leyes.data() ? " " : "; ") + Duracion(f, l) + ", " +
                  std::string(l.ley->nombre) + (l.recomendada ? " (recomendada)" : "") + ", " +
                  std::to_string(l.anios) + " años";
    }
    t.nota += ".";
    for (const double R : Recurrencias(f)) {
        std::vector<std::string>& fila = t.filas.emplace_back();
        fila.push_back(f.n.Con(R, 0));
        for (const auto& l : leyes)
            fila.push_back(f.n.Con(l.factor * frequency::Cuantil(*l.ley, l.p, l.p0, 1 - 1 / R), 1));
    }
    return Sola(std::move(t));
}

// --- curves, storm ---

std::vector<Tabla> Coeficientes(const Fuente& f)
{
    if (!f.estudio.curvas || f.estudio.curvas->ajuste.familia == nullptr) return {};
    const auto& ajuste = f.estudio.curvas->ajuste;
    Tabla t{.titulo = "Coeficientes de las curvas, " + std::string(ajuste.familia->nombre)};
    if (ajuste.familia->porRecurrencia) t.columnas.push_back(Encabezado("Recurrencia", "años", false));
    for (std::size_t i = 0; i < ajuste.familia->cuantos; ++i)
        t.columnas.push_back(Encabezado(ajuste.familia->coeficientes[i].simbolo, "", false));
    for (const auto& c : ajuste.coeficientes) {
        std::vector<std::string>& fila = t.filas.emplace_back();
        if (ajuste.familia->porRecurrencia) fila.push_back(f.n.Corta(c.recurrencia));
        for (std::size_t i = 0; i < ajuste.familia->cuantos; ++i)
            fila.push_back(f.n.Corta(c.c[i]));
    }
    return Sola(std::move(t));
}

std::vector<Tabla> Intensidades(const Fuente& f)
{
    if (!f.estudio.curvas) return {};
    Tabla t{.titulo = "Intensidad por duración y recurrencia",
            .columnas = {Encabezado("Duración", "", true)}};
    for (const double R : Recurrencias(f))
        t.columnas.push_back(Encabezado("R " + f.n.Con(R, 0), "mm/h", false));
    for (const double D : Duraciones(f)) {
        std::vector<std::string>& fila = t.filas.emplace_back();
        fila.push_back(Duracion(f, D));
        for (const double R : Recurrencias(f))
            fila.push_back(f.n.Con(frequency::idf::Intensidad(*f.estudio.curvas, D, R), 1));
    }
    return Sola(std::move(t));
}

using frequency::PasoDeDiseno;
// clang-format off
constexpr auto DeDiseno = std::to_array<ColumnaDe<PasoDeDiseno>>({
    {"Hasta", "min", false, [](const Fuente& f, const PasoDeDiseno& p) { return f.n.Con(p.hasta, 0); }},
    {"Lámina", "mm", false, [](const Fuente& f, const PasoDeDiseno& p) { return f.n.Con(p.lamina, 2); }},
    {"Acumulada", "mm", false, [](const Fuente& f, const PasoDeDiseno& p) { return f.n.Con(p.acumulada, 2); }},
    {"Intensidad", "mm/h", false, [](const Fuente& f, const PasoDeDiseno& p) { return f.n.Con(p.intensidad, 2); }},
    {"En la distribución", "%", false, [](const Fuente& f, const PasoDeDiseno& p) { return f.n.Con(p.porcentaje, 0); }},
});

using study::Derivado;
constexpr auto DeDerivados = std::to_array<ColumnaDe<Derivado>>({
    {"Fecha", "", true, [](const Fuente&, const Derivado& x) { return ONada(x.fecha); }},
    {"Destino", "", true, [](const Fuente&, const Derivado& x) { return ONada(x.destino); }},
    {"Origen", "", true, [](const Fuente& f, const Derivado& x) { return f.n.EnTexto(ONada(x.origen)); }},
});
// clang-format on

std::vector<Tabla> Diseno(const Fuente& f)
{
    if (!f.estudio.diseno) return {};
    Tabla t = TablaDe<PasoDeDiseno>(f, "Tormenta de diseño", std::span(DeDiseno),
                                    frequency::PasosDe(*f.estudio.diseno));
    t.nota = f.n.EnTexto(f.estudio.diseno->origen);
    return Sola(std::move(t));
}

std::vector<Tabla> Derivados(const Fuente& f)
{
    return Sola(TablaDe<Derivado>(f, "Tablas de lluvia escritas desde el estudio", std::span(DeDerivados),
                                  f.estudio.taller.derivados));
}

// --- observed floods ---

std::vector<Tabla> Observadas(const Fuente& f)
{
    Tabla t{.titulo = "Crecidas observadas",
            .columnas = {Encabezado("Evento", "", true), Encabezado("Comienzo", "", true),
                         Encabezado("Se usa para", "", true), Encabezado("Componente", "", true),
                         Encabezado("Lecturas", "", false), Encabezado("La mayor", "", false)}};
    std::vector<std::string> fuentes;  // long ones, and often the same
    for (const study::Evento& e : f.estudio.ajuste.eventos)
        for (const study::Observacion& o : e.observaciones) {
            double mayor = 0;
            for (const study::Punto& p : o.puntos)
                mayor = &p == o.puntos.data() ? p.valor : std::max(mayor, p.valor);
            const std::string papel = e.papel == "calibra"  ? "calibrar"
                                      : e.papel == "valida" ? "validar"
                                                            : "nada";
            t.filas.push_back(
                {e.nombre, ONada(e.inicio), papel, o.componente, std::to_string(o.puntos.size()),
                 o.puntos.empty() ? "-" : f.n.Corta(mayor) + (o.magnitud == "nivel" ? " m" : " m³/s")});
            const bool dicha = std::find(fuentes.begin(), fuentes.end(), o.fuente) != fuentes.end();
            if (!o.fuente.empty() && !dicha) fuentes.push_back(o.fuente);
        }
    for (const std::string& fuente : fuentes)
        t.nota += (t.nota.empty() ? fuentes.size() == 1 ? "Fuente: " : "Fuentes: " : "; ") + fuente;
    return Sola(std::move(t));
}

constexpr auto Filas = std::to_array<FilaDeTabla>({
    {"maximos", "los máximos anuales de la estación del estudio", "El estudio no tiene máximos anuales.",
     Maximos},
    {"pruebas", "las pruebas de independencia, homogeneidad y valores atípicos",
     "No hay una muestra analizada.", Pruebas},
    {"leyes", "las leyes ajustadas, con la que se tomó", "No hay leyes ajustadas.", Leyes},
    {"cuantiles", "la lámina de cada recurrencia, por duración",
     "Las láminas de cada recurrencia piden curvas de intensidad, y el estudio no las tiene.", Cuantiles},
    {"coeficientes", "los coeficientes de las curvas de intensidad", "No hay curvas de intensidad.",
     Coeficientes},
    {"intensidades", "la intensidad por duración y recurrencia", "No hay curvas de intensidad.",
     Intensidades},
    {"diseno", "la tormenta de diseño del estudio, paso a paso",
     "El estudio no tiene una tormenta de diseño.", Diseno},
    {"derivados", "lo que se escribió desde el estudio en las tablas de lluvia",
     "Desde el estudio no se escribieron tablas de lluvia.", Derivados},
    {"observadas", "las crecidas observadas", "El estudio no tiene crecidas observadas.", Observadas},
});

}  // namespace

std::span<const FilaDeTabla> TablasDeEstudio()
{
    return Filas;
}

}  // namespace report
