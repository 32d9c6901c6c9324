// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgTabla.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <utility>

#include "editor/EnMano.h"
#include "forms/Evento.h"
#include "model/Avisos.h"
#include "model/Numeros.h"
#include "model/TablasEmbalse.h"

namespace editor {

using model::NumeroATexto;
using model::Siro;

namespace {

constexpr int ColumnaIndice = 0;
constexpr int PrimeraColumna = 1;

constexpr forms::ReglaNumero ReglaNroFilas = forms::ReglaDeCuenta("txtNroFilas");

constexpr std::string_view Recordatorio =  // kept as it stands
    "Asegurar los cambios producidos pulsando <Guardar> desde el formulario gráfico de de UEHs. De lo "
    "contrario se perderá la información cargada.";

constexpr std::string_view TituloSePerderian = "Tablas que se perderían";

// --- descriptions ---

// The words of the columns are the user's: A is the surface, S the volume.
constexpr auto PruebasHAS = std::to_array<PruebaOrden>({
    {true, "Error, la altura H debe ser creciente, Verifique la fila "},
    {false, "Error, la Superficie S debe ser creciente, Verifique la fila "},
    {true, "Error, el Volumen V debe ser creciente, Verifique la fila "},
});

constexpr auto ArreglosSHV =
    std::to_array<ArregloTabla>({&model::Red::RepresaH, &model::Red::RepresaA, &model::Red::RepresaS});
constexpr auto ArreglosFQ = std::to_array<ArregloTabla>({&model::Red::RepresaQH, &model::Red::RepresaQQ});
constexpr auto ArreglosSHVQ = std::to_array<ArregloTabla>(
    {&model::Red::LagoH, &model::Red::LagoA, &model::Red::LagoS, &model::Red::LagoQ});

constexpr auto Editables = std::to_array<forms::ColumnaEditable>({{1}, {2}, {3}, {4}});

constexpr forms::ReglasGrilla ReglasDe(std::string_view encabezado, std::size_t columnas)
{
    return {.encabezado = encabezado,
            .editables = std::span(Editables).first(columnas),
            .columnasFijas = PrimeraColumna};
}

constexpr auto Descripciones = std::to_array<DescripcionTabla>({
    {.tipo = TipoTabla::SHV,
     .nombre = "dlgTablaSHV",
     .titulo = "Tabla Altura H[m]- Area A[has] - Almacenamiento S[m3], en Represa",
     .nombreGrilla = "MSFlexGridFQ",
     .nombreLblNro = "lblNroRepresa",
     .nombreLblNombre = "lblNombreRepresa",
     .grilla = ReglasDe("^Indice|>H [m]          |> Area A[has]          |> Almacenamiento S[m3]",
                        ArreglosSHV.size()),
     .arreglos = ArreglosSHV,
     .pruebas = PruebasHAS,
     .clase = model::Clase::Represa,
     .filas = &model::Red::RepresaFilasHAS,
     .archivo = model::ArchivoDeTablas::RHAS,
     .lee = model::LeeTablaHSVRepresa,
     .guarda = model::GuardaTablaHSVRepresa},
    {.tipo = TipoTabla::FQ,
     .nombre = "dlgTablaFQ",
     .titulo = "Tabla Altura H[m]- Caudal Q[m3/s], en Represa",
     .nombreGrilla = "MSFlexGridFQ",
     .nombreLblNro = "lblNroRepresa",
     .nombreLblNombre = "lblNombreRepresa",
     .grilla = ReglasDe("^Indice|>H [m]          |> Q[m]          ", ArreglosFQ.size()),  // kept as it stands
     .arreglos = ArreglosFQ,
     .pruebas = std::span(PruebasHAS).first(1),
     .clase = model::Clase::Represa,
     .filas = &model::Red::RepresaFilasHQ,
     .archivo = model::ArchivoDeTablas::RHQ,
     .lee = model::LeeTablaHQRepresa,
     .guarda = model::GuardaTablaHQRepresa},
    {.tipo = TipoTabla::SHVQ,
     .nombre = "dlgTablaSHVQ",
     .titulo =
         "Tabla Altura H[m]- Area A[has]-Almacenamiento S[m3]- Caudal Q[m3/s] en Lago / Laguna / Mallin",
     .nombreGrilla = "MSFlexGridHSVQ",
     .nombreLblNro = "lblNroLago",
     .nombreLblNombre = "lblNombreLago",
     .grilla = ReglasDe(
         "^Indice|>H [m]          |> Area A[has]          |> Almacenamiento S[m3] |> Q[m3/s]          ",
         ArreglosSHVQ.size()),
     .arreglos = ArreglosSHVQ,
     .pruebas = PruebasHAS,
     .clase = model::Clase::Lago,
     .filas = &model::Red::LagoFilas,
     .archivo = model::ArchivoDeTablas::LHASQ,
     .lee = model::LeeTablaHSVQLago,
     .guarda = model::GuardaTablaHSVQLago},
});
constexpr bool EnOrdenDeTipos()
{
    for (std::size_t i = 0; i < Descripciones.size(); ++i)
        if (Descripciones[i].tipo != static_cast<TipoTabla>(i)) return false;
    return true;
}
static_assert(EnOrdenDeTipos());

/// Does something with the kind of the table's components, as `hace<T>()`.
template <typename F>
auto ConSuClase(const DescripcionTabla& d, F hace)
{
    return d.clase == model::Clase::Represa ? hace.template operator()<model::Represa>()
                                            : hace.template operator()<model::Lago>();
}

/// Number of the selected component.
std::int16_t NumeroElegido(const DescripcionTabla& d, const Siro& s)
{
    return ConSuClase(d, [&]<typename T>() { return Elegido<T>(s.Seleccion); });
}

/// Takes the count of the components from their collection.
std::int16_t Cuenta(const DescripcionTabla& d, Siro& s)
{
    return ConSuClase(d, [&]<typename T>() { return model::Todos<T>(s.Red).Recuenta(); });
}

// --- grid ---

/// Keeps the rows that the grid is about to lose.
void CortaFilas(dlgTabla& f)
{
    auto& filas = f.grilla.filas;
    const auto corte = filas.begin() + std::min(int{f.NroFilas}, f.grilla.NroFilas());
    f.cortadas.insert(f.cortadas.begin(), corte, filas.end());
}

/// Puts the rows that were cut where the grid has room for them again.
void DevuelveFilas(dlgTabla& f, int desde)
{
    const auto n = std::min<std::ptrdiff_t>(f.NroFilas - desde, std::ssize(f.cortadas));
    if (n <= 0) return;
    const auto hasta = f.cortadas.begin() + n;
    std::move(f.cortadas.begin(), hasta, f.grilla.filas.begin() + desde);
    f.cortadas.erase(f.cortadas.begin(), hasta);
}

void PonFilas(dlgTabla& f, std::int16_t filas)
{
    f.NroFilas = std::max<std::int16_t>(filas, 0);
    const int antes = f.grilla.NroFilas();
    CortaFilas(f);
    forms::PonNroFilas(f.grilla, f.NroFilas);
    DevuelveFilas(f, antes);
    for (std::int32_t k = 1; k <= f.NroFilas; ++k)
        f.grilla.Pon({k, ColumnaIndice}, NumeroATexto(k));
}

void MuestraTabla(dlgTabla& f, const Siro& s)
{
    const DescripcionTabla& d = *f.descripcion;
    const int numero = NumeroElegido(d, s);
    PonFilas(f, (s.Red.*d.filas)(numero));
    f.txtNroFilas = NumeroATexto(std::int32_t{f.NroFilas});
    for (std::size_t c = 0; c < d.arreglos.size(); ++c)
        for (int k = 1; k <= f.NroFilas; ++k)
            std::visit(
                [&](auto arreglo) {
                    f.grilla.Pon({k, PrimeraColumna + static_cast<int>(c)},
                                 NumeroATexto((s.Red.*arreglo)(numero, k)));
                },
                d.arreglos[c]);
    f.aplicadas = f.grilla.filas;
}

}  // namespace

const DescripcionTabla& DescripcionDe(TipoTabla tipo)
{
    return Descripciones[static_cast<std::size_t>(tipo)];
}

void Abre(dlgTabla& f, Siro& s, TipoTabla tipo, std::string lblNro, std::string lblNombre)
{
    const DescripcionTabla& d = DescripcionDe(tipo);
    f = {.descripcion = &d, .abierta = true, .grilla = forms::NuevaGrilla(d.grilla)};
    forms::Evento(s, [&] {
        f.hayComponente = Cuenta(d, s) > 0;
        if (!f.hayComponente) return;
        ConSuClase(d, [&]<typename T>() {
            if (Elegido<T>(s.Seleccion) == 0) Elegido<T>(s.Seleccion) = 1;
        });
        f.lblNro = std::move(lblNro);
        f.lblNombre = std::move(lblNombre);
        d.lee(s);
        MuestraTabla(f, s);
    });
}

void txtNroFilas_Change(dlgTabla& f, const Siro& s, std::string texto)
{
    if (!forms::Vale(ReglaNroFilas, texto)) {
        forms::MuestraRechazo(s, ReglaNroFilas.rechazo, ReglaNroFilas.mensaje);
        f.foco = {ReglaNroFilas.control, true};
        return;
    }
    f.foco = {};
    forms::ComoUnPaso(
        f.grilla, [&] { PonFilas(f, model::Entero16(model::Val(texto))); }, true);
    f.txtNroFilas = std::move(texto);
}

void AlVolverFilas(dlgTabla& f)
{
    f.NroFilas = static_cast<std::int16_t>(f.grilla.NroFilas());
    f.txtNroFilas = NumeroATexto(std::int32_t{f.NroFilas});
    f.cortadas.clear();  // they are in the grid again, or in the step that brings them back
}

void cmdBorraTablaHQ(dlgTabla& f)
{
    forms::VaciaDatos(f.grilla);
    f.cortadas.clear();
}

// --- applying ---

namespace {

/// Makes room for the rows of every component, so that nobody's are cut.
void HaceLugar(const dlgTabla& f, Siro& s)
{
    const DescripcionTabla& d = *f.descripcion;
    Cuenta(d, s);
    int mayor = f.NroFilas;
    for (int numero = 0; numero <= (s.Red.*d.filas).Tope(); ++numero)
        mayor = std::max(mayor, int{(s.Red.*d.filas)(numero)});
    for (const ArregloTabla& arreglo : d.arreglos)
        std::visit([&](auto a) { (s.Red.*a).Redimensiona(std::max(mayor, (s.Red.*a).TopeColumna())); },
                   arreglo);
}

/// Returns whether every data cell is numeric; no message says which isn't, but the cursor goes to the last
/// one.
bool SonNumeros(dlgTabla& f)
{
    bool todas = true;
    for (int columna = PrimeraColumna; columna < f.grilla.NroColumnas(); ++columna)
        for (int fila = 1; fila <= f.NroFilas; ++fila)
            if (!f.grilla.EsNumero({fila, columna})) {
                forms::Mueve(f.grilla, {fila, columna});
                todas = false;
            }
    return todas;
}

/// Returns whether a column rises as it must; each row that doesn't has its message.
bool Crece(dlgTabla& f, const Siro& s, int columna, const PruebaOrden& prueba)
{
    bool crece = true;
    for (int fila = 2; fila <= f.NroFilas; ++fila) {
        const float antes = model::Simple(f.grilla.Numero({fila - 1, columna}));
        const float x = model::Simple(f.grilla.Numero({fila, columna}));
        if (prueba.estricta ? x > antes : x >= antes) continue;
        crece = false;
        forms::Mueve(f.grilla, {fila, columna});
        model::Advierte(s, std::string(prueba.mensaje) + NumeroATexto(std::int32_t{fila}));
    }
    return crece;
}

void Guarda(float& lugar, double valor)
{
    lugar = model::Simple(valor);
}

// Without the step of a 32-bit float that the reader makes.
void Guarda(std::int32_t& lugar, double valor)
{
    lugar = model::Entero32(valor);
}

/// Takes the cells into the arrays; a number outside its type leaves the arrays as they are.
void Toma(const dlgTabla& f, Siro& s)
{
    const DescripcionTabla& d = *f.descripcion;
    const int numero = NumeroElegido(d, s);
    static_cast<void>((s.Red.*d.filas)(numero));
    for (const bool enSerio : {false, true})
        for (std::size_t c = 0; c < d.arreglos.size(); ++c)
            for (int k = 1; k <= f.NroFilas; ++k)
                std::visit(
                    [&](auto arreglo) {
                        auto lugar = (s.Red.*arreglo)(numero, k);
                        Guarda(lugar, f.grilla.Numero({k, PrimeraColumna + static_cast<int>(c)}));
                        if (enSerio) (s.Red.*arreglo)(numero, k) = lugar;
                    },
                    d.arreglos[c]);
    (s.Red.*d.filas)(numero) = f.NroFilas;
}

/// Names of the blocks with rows that the file has and won't have once it is written: nobody bears the name,
/// or its component has no rows in memory. A rename does both, since the reader stops at a block that it
/// misses.
std::string SePerderian(const dlgTabla& f, const Siro& s)
{
    const DescripcionTabla& d = *f.descripcion;
    std::string nombres;
    for (const model::BloqueDeTabla& bloque : model::BloquesDe(s, d.archivo)) {
        const int numero =
            ConSuClase(d, [&]<typename T>() { return model::NumeroDe<T>(s.Red, bloque.nombre); });
        const bool queda = numero == NumeroElegido(d, s) || (numero > 0 && (s.Red.*d.filas)(numero) > 0);
        if (bloque.filas > 0 && !queda) nombres += (nombres.empty() ? "" : ", ") + bloque.nombre;
    }
    return nombres;
}

/// Returns whether nothing would be lost, or the user lets it go.
bool Conviene(const dlgTabla& f, const Siro& s)
{
    const std::string nombres = SePerderian(f, s);
    return nombres.empty() ||
           model::Consulta(s,
                           "Al escribir el archivo " + model::NombreDeArchivo(s, f.descripcion->archivo) +
                               " se perderían las tablas de: " + nombres + ". ¿Desea aplicar igual ?",
                           TituloSePerderian);
}

/// Returns false where the table had to be written and wasn't: it couldn't be, which has been told, or the
/// user keeps what would be lost.
bool Aplica(dlgTabla& f, Siro& s)
{
    if (!f.hayComponente) return true;
    const DescripcionTabla& d = *f.descripcion;
    HaceLugar(f, s);
    bool bien = SonNumeros(f);
    for (std::size_t i = 0; i < d.pruebas.size(); ++i)
        bien = Crece(f, s, PrimeraColumna + static_cast<int>(i), d.pruebas[i]) && bien;
    if (!bien) return true;
    if (!Conviene(f, s)) return false;
    Toma(f, s);
    const bool guardada = d.guarda(s);
    if (guardada) {
        f.cortadas.clear();
        f.aplicadas = f.grilla.filas;
    }
    if (f.NroFilas >= 1) forms::Mueve(f.grilla, {1, PrimeraColumna});
    return guardada;
}

}  // namespace

void OrdenaPorAltura(dlgTabla& f)
{
    if (!SonNumeros(f)) return;
    const auto celdas = [&](int fila) {
        std::vector<double> numeros;
        for (int columna = PrimeraColumna; columna < f.grilla.NroColumnas(); ++columna)
            numeros.push_back(f.grilla.Numero({fila, columna}));
        return numeros;
    };
    std::vector<std::pair<std::vector<double>, forms::FilaGrilla>> filas;
    for (int fila = 1; fila <= f.NroFilas; ++fila)
        filas.emplace_back(celdas(fila), f.grilla.filas[static_cast<std::size_t>(fila) - 1]);
    std::stable_sort(filas.begin(), filas.end(),
                     [](const auto& a, const auto& b) { return a.first[0] < b.first[0]; });
    filas.erase(std::unique(filas.begin(), filas.end(),
                            [](const auto& a, const auto& b) { return a.first == b.first; }),
                filas.end());
    forms::ComoUnPaso(f.grilla, [&] {
        for (std::size_t k = 0; k < filas.size(); ++k)
            f.grilla.filas[k] = filas[k].second;
        PonFilas(f, static_cast<std::int16_t>(filas.size()));
    });
    f.cortadas.clear();
    f.txtNroFilas = NumeroATexto(std::int32_t{f.NroFilas});
}

bool cmdAplicar(dlgTabla& f, Siro& s)
{
    bool hecho = true;
    forms::Evento(s, [&] { hecho = Aplica(f, s); });
    return hecho;
}

bool SinAplicar(const dlgTabla& f)
{
    return f.abierta && f.grilla.filas != f.aplicadas;
}

void OKButton(dlgTabla& f, Siro& s)
{
    if (!cmdAplicar(f, s)) return;  // what wasn't saved is nowhere but here
    model::Advierte(s, std::string(Recordatorio), {});
    f.abierta = false;
}

void CancelButton(dlgTabla& f)
{
    f.abierta = false;
}

// --- plot ---

namespace {

std::vector<PuntoCurva> Puntos(const forms::Grilla& g, int columna)
{
    std::vector<PuntoCurva> puntos;
    for (int fila = 1; fila <= g.NroFilas(); ++fila)
        if (g.EsNumero({fila, PrimeraColumna}) && g.EsNumero({fila, columna}))
            puntos.push_back({g.Numero({fila, PrimeraColumna}), g.Numero({fila, columna})});
    return puntos;
}

}  // namespace

std::vector<CurvaTabla> Curvas(const dlgTabla& f)
{
    constexpr int ColumnaS = 3;
    const int ultima = f.grilla.NroColumnas() - 1;
    std::vector<CurvaTabla> curvas;
    if (ultima >= ColumnaS) curvas.push_back({"H [m]", "S [m3]", Puntos(f.grilla, ColumnaS)});
    if (ultima >= PrimeraColumna && ultima != ColumnaS)
        curvas.push_back({"H [m]", "Q [m3/s]", Puntos(f.grilla, ultima)});
    return curvas;
}

}  // namespace editor
