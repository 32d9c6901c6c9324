// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/Comparacion.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <utility>

#include "checks/ResumenDeCorrida.h"

namespace runs {

using checks::ColumnaDeResumen;
using checks::DeQuien;
using checks::UltimaCorrida;

namespace {

/// By component, the rows of the summary of each side. Rows of the network's own names.
class Resumenes {
  public:
    explicit Resumenes(const Lados& lados)
    {
        for (const Lado& lado : lados) {
            auto& suyas = filas.emplace_back();
            for (const DeQuien& d : checks::FilasDeResumen(*lado.corrida))
                suyas.try_emplace(d.nombre, d);
        }
    }
    /// Null where that side has no such row.
    [[nodiscard]] const DeQuien* De(std::size_t lado, const std::string& nombre) const
    {
        const auto fila = filas[lado].find(nombre);
        return fila == filas[lado].end() ? nullptr : &fila->second;
    }

  private:
    std::vector<std::map<std::string, DeQuien>> filas{};
};

/// A figure of the summary that is compared; the error of balance is of a run alone.
struct Columna {
    ColumnaDeResumen que;
    bool deSerie;
};
std::vector<Columna> Columnas(const Lados& lados)
{
    std::vector<Columna> columnas;
    for (const bool serie : {false, true}) {
        if (serie ? !HaySeries(lados) : !HayTormentas(lados)) continue;
        for (const ColumnaDeResumen& c : checks::ColumnasDeResumen(serie)) {
            if (c.titulo == "Error") continue;
            columnas.push_back({c, serie});
            if (c.titulo == "H máx")
                columnas.push_back(
                    {{"S máx", "m3", "Almacenamiento mayor", 0, true, checks::AlmacenamientoMaximo}, serie});
        }
    }
    return columnas;
}

/// The figures of a row of the summaries; `nombres`: of the component by side.
void AgregaCifras(const Lados& lados, const Resumenes& resumenes, const std::vector<Columna>& columnas,
                  const std::string& componente, const std::vector<std::string>& nombres,
                  std::vector<Cifra>& cifras)
{
    for (const Columna& c : columnas) {
        Cifra cifra{.componente = componente,
                    .magnitud = c.que.titulo,
                    .unidad = c.que.unidad,
                    .explica = c.que.explica,
                    .decimales = c.que.decimales,
                    .conPorCiento = c.que.unidad != "Nro."};
        bool alguno = false;
        for (std::size_t k = 0; k < lados.size(); ++k) {
            const DeQuien* const d = resumenes.De(k, nombres[k]);
            const bool suya = d != nullptr && lados[k].corrida->esSerie == c.deSerie &&
                              (componente.empty() || !nombres[k].empty());
            cifra.valores.push_back(suya ? c.que.valor(*d) : std::nullopt);
            alguno = alguno || cifra.valores.back().has_value();
        }
        if (alguno) cifras.push_back(std::move(cifra));
    }
}

std::vector<Cifra> CifrasDe(const Lados& lados, const std::vector<Emparejado>& componentes)
{
    const Resumenes resumenes(lados);
    const std::vector<Columna> columnas = Columnas(lados);
    std::vector<Cifra> cifras;
    for (const Emparejado& e : componentes)
        AgregaCifras(lados, resumenes, columnas, e.Nombre(), e.nombres, cifras);
    AgregaCifras(lados, resumenes, columnas, "", std::vector<std::string>(lados.size()), cifras);
    return cifras;
}

/// Place of a component in the results; 0: it has none.
int FilaDe(const UltimaCorrida& u, const std::string& nombre)
{
    const std::vector<std::string>& s = u.r().Secuencia;
    const auto lugar = nombre.empty() || s.empty() ? s.end() : std::find(s.begin() + 1, s.end(), nombre);
    return lugar == s.end() ? 0 : static_cast<int>(lugar - s.begin());
}

/// The hydrograph of a component at the ends of the output steps; null where the run left none.
const float* HidrogramaDe(const UltimaCorrida& u, const std::string& nombre, bool entra)
{
    if (!u.balance) return nullptr;
    const int fila = FilaDe(u, nombre);
    const model::Matriz<float>& Q = entra ? u.r().QEntra : u.r().QSale;
    return fila > 0 && Q.Alcanza(fila, u.r().NroPasosQ) ? Q.Fila(fila) : nullptr;
}

std::string ProcedenciaDe(const Lado& lado)
{
    const UltimaCorrida& u = *lado.corrida;
    std::string texto = lado.nombre + ": proyecto " + u.sello.nombre;
    if (!u.titulo.empty()) texto += " - " + u.titulo;
    texto += "; " + u.sello.tormenta;
    if (!u.huella.empty()) texto += "; huella " + u.huella;
    return texto;
}

}  // namespace

Comparacion Compara(const Lados& lados)
{
    Comparacion c;
    for (const Lado& lado : lados) {
        c.lados.push_back(lado.nombre);
        c.procedencia.push_back(ProcedenciaDe(lado));
    }
    c.componentes = Empareja(lados);
    c.parametros = Distintos(lados, c.componentes);
    c.cifras = CifrasDe(lados, c.componentes);
    return c;
}

std::optional<double> Diferencia(std::optional<double> base, std::optional<double> valor)
{
    if (!base || !valor || !std::isfinite(*base) || !std::isfinite(*valor)) return {};
    return *valor - *base;
}

std::optional<double> PorCiento(std::optional<double> base, std::optional<double> valor)
{
    const std::optional<double> d = Diferencia(base, valor);
    if (!d || *base == 0) return {};
    return 100 * *d / std::fabs(*base);
}

Superpuestos Hidrogramas(const Lados& lados, const Emparejado& componente, bool entra)
{
    std::map<double, std::vector<double>> porMinuto;
    const std::vector<double> vacia(lados.size(), std::numeric_limits<double>::quiet_NaN());
    for (std::size_t k = 0; k < lados.size(); ++k) {
        const UltimaCorrida& u = *lados[k].corrida;
        const float* const q = HidrogramaDe(u, componente.nombres[k], entra);
        for (int i = 1; q != nullptr && i <= u.r().NroPasosQ; ++i)
            porMinuto.try_emplace(double{1} * i * u.pasos.PasoQ, vacia).first->second[k] = double{q[i]};
    }
    Superpuestos s;
    s.caudales.resize(lados.size());
    for (const auto& [minuto, valores] : porMinuto) {
        s.minutos.push_back(minuto);
        for (std::size_t k = 0; k < lados.size(); ++k)
            s.caudales[k].push_back(valores[k]);
    }
    return s;
}

std::vector<PicoDeSerie> PicosDeSerie(const Lados& lados, const Emparejado& componente)
{
    std::map<std::pair<std::int16_t, std::int16_t>, PicoDeSerie> picos;  // by recurrence and duration
    for (std::size_t k = 0; k < lados.size(); ++k) {
        const UltimaCorrida& u = *lados[k].corrida;
        const int fila = FilaDe(u, componente.nombres[k]);
        if (!u.esSerie || fila == 0) continue;
        for (const int n : u.corridas) {
            if (!u.r().QMax.Alcanza(fila, n)) continue;
            PicoDeSerie& p = picos[{u.serie.SerieR(n), u.serie.SerieD(n)}];
            p.D = u.serie.SerieD(n);
            p.R = u.serie.SerieR(n);
            p.laminas.resize(lados.size());
            p.picos.resize(lados.size());
            p.laminas[k] = double{u.serie.SerieP(n)};
            p.picos[k] = double{u.r().QMax(fila, n)};
        }
    }
    std::vector<PicoDeSerie> todos;
    for (auto& [clave, p] : picos)
        todos.push_back(std::move(p));
    return todos;
}

bool HaySeries(const Lados& lados)
{
    return std::ranges::any_of(lados, [](const Lado& l) { return l.corrida->esSerie; });
}

bool HayTormentas(const Lados& lados)
{
    return std::ranges::any_of(lados, [](const Lado& l) { return !l.corrida->esSerie; });
}

}  // namespace runs
