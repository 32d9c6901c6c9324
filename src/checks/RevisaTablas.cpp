// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cmath>
#include <cstddef>

#include "checks/Arregla.h"
#include "checks/Reglas.h"
#include "engine/Embalses.h"
#include "hydraulics/FuncionesFQ.h"
#include "model/Numeros.h"

namespace checks {

using model::NumeroATexto;

namespace {

using Columna = std::vector<double>;

constexpr double MetrosPorHectarea = 10000;  // [m2]
constexpr double HolguraDeVolumen = 0.1;     // share of a row's own volume

/// The first row, from 2, that isn't above the one before it, or `igual`: that is below it; 0 if none.
std::size_t Baja(const Columna& c, bool igual)
{
    for (std::size_t k = 1; k < c.size(); ++k)
        if (igual ? !(c[k] >= c[k - 1]) : !(c[k] > c[k - 1])) return k + 1;
    return 0;
}

/// A column of a table, and how bad it is where it falls.
struct FilaColumna {
    int numero;
    Gravedad gravedad;
    const char* que;
    const char* unidad;
};
constexpr FilaColumna DeS{222, Gravedad::Error, "El almacenamiento baja al subir la altura", " m3"};
constexpr FilaColumna DeQ{223, Gravedad::Aviso, "El caudal de salida baja al subir la altura", " m3/s"};
constexpr FilaColumna DeA{224, Gravedad::Aviso, "La superficie baja al subir la altura", " ha"};

void RevisaColumna(const std::string& nombre, const Columna& c, const FilaColumna& fila, Hallazgos& l)
{
    if (const std::size_t k = Baja(c, true))
        l.push_back({fila.gravedad, fila.numero, nombre, fila.que,
                     "fila " + std::to_string(k) + ": " + NumeroATexto(c[k - 2]) + ", " +
                         NumeroATexto(c[k - 1]) + fila.unidad,
                     "Corrija esa fila de la tabla."});
}

/// Whether there are rows and their heights rise; tells what is wrong.
bool RevisaAlturas(const std::string& nombre, const std::string& tabla, const std::vector<Columna>& columnas,
                   Hallazgos& l)
{
    const Columna& H = columnas.front();
    if (H.empty()) {
        l.push_back(
            {Gravedad::Error, 220, nombre, "Falta la tabla " + tabla, "", "Cárguela en sus propiedades."});
        return false;
    }
    const std::size_t k = Baja(H, false);
    if (k == 0) return true;
    Hallazgo h{
        Gravedad::Error,
        221,
        nombre,
        "Las alturas de la tabla " + tabla + " no suben",
        "fila " + std::to_string(k) + ": " + NumeroATexto(H[k - 2]) + ", " + NumeroATexto(H[k - 1]) + " m",
        "Corrija las filas."};
    if (SeOrdena(columnas)) {
        h.remedio = "Ordene las filas por altura.";
        h.arreglo = Arreglo::OrdenaTabla;
    }
    l.push_back(h);
    return false;
}

/// What lies between two heights holds at least the smaller of their areas, and the greater one at most.
void RevisaVolumenes(const std::string& nombre, const std::vector<Columna>& t, Hallazgos& l)
{
    const auto &H = t[0], &A = t[1], &S = t[2];
    for (std::size_t k = 1; k < H.size(); ++k) {
        const double capa = (H[k] - H[k - 1]) * MetrosPorHectarea;
        const double menor = capa * std::min(A[k], A[k - 1]), mayor = capa * std::max(A[k], A[k - 1]);
        const double dS = S[k] - S[k - 1];
        if (mayor <= 0 ||
            (dS >= menor * (1 - HolguraDeVolumen) - 1 && dS <= mayor * (1 + HolguraDeVolumen) + 1))
            continue;
        l.push_back({Gravedad::Aviso, 225, nombre, "El almacenamiento no corresponde a las superficies",
                     "fila " + std::to_string(k + 1) + ": " + NumeroATexto(dS) +
                         " m3, por las superficies de " + NumeroATexto(model::Redondea(menor, 0)) + " a " +
                         NumeroATexto(model::Redondea(mayor, 0)) + " m3",
                     "Revise esas filas y sus unidades: H en m, A en ha, S en m3."});
        return;
    }
}

void RevisaAltura(const model::Red& red, const auto& e, const std::string& nombre, Hallazgos& l)
{
    const auto a = AlturasConocidas(red, e);
    if (e.Metodo == engine::MetodoMuskingum || !a || (a->desde <= e.HInicialEmb && e.HInicialEmb <= a->hasta))
        return;
    l.push_back({Gravedad::Error, 226, nombre, "La altura inicial está fuera de las tablas",
                 NumeroATexto(e.HInicialEmb) + " m, tablas de " + NumeroATexto(a->desde) + " a " +
                     NumeroATexto(a->hasta) + " m",
                 "Lleve la altura inicial al extremo más cercano, o amplíe las tablas.",
                 Arreglo::AlturaInicial});
}

/// Above this height nothing is known of the outflow although the storage goes on [m].
void RevisaTope(const std::string& nombre, double topeQ, const Columna& H, Hallazgos& l)
{
    if (H.empty() || !(topeQ < H.back())) return;
    l.push_back({Gravedad::Aviso, 227, nombre, "La descarga termina por debajo de la tabla H-A-S",
                 NumeroATexto(topeQ) + " m, la tabla llega a " + NumeroATexto(H.back()) + " m",
                 "Amplíe la descarga hasta esa altura."});
}

void RevisaFuncion(const std::string& nombre, const hydraulics::FuncionFQ& f, Hallazgos& l)
{
    if (!(f.minimo < f.maximo))
        l.push_back({Gravedad::Aviso, 229, nombre, "Una función de descarga no abarca ninguna altura",
                     "de " + NumeroATexto(f.minimo) + " a " + NumeroATexto(f.maximo) + " m",
                     "Corrija H mín y H máx."});
    if (f.a < 0)
        l.push_back({Gravedad::Aviso, 230, nombre, "Una función de descarga tiene un coeficiente a negativo",
                     NumeroATexto(f.a), "Corrija el coeficiente."});
}

void RevisaFunciones(const model::Represa& r, const Columna& H, Hallazgos& l)
{
    const hydraulics::FuncionesEnUso funciones(r);
    if (funciones.begin() == funciones.end()) {
        l.push_back({Gravedad::Error, 228, r.NombreRepresa, "No tiene ninguna función de descarga en uso", "",
                     "Marque y cargue al menos una, o use la tabla H-Q."});
        return;
    }
    double tope = funciones.begin()->maximo;
    for (const hydraulics::FuncionFQ& f : funciones) {
        tope = std::max<double>(tope, f.maximo);
        RevisaFuncion(r.NombreRepresa, f, l);
    }
    RevisaTope(r.NombreRepresa, tope, H, l);
}

void RevisaRepresa(const model::Red& red, const model::Represa& r, Hallazgos& l)
{
    const int n = r.numRepresa;
    const std::vector<Columna> t = {ColumnaDe(red.RepresaH, red.RepresaFilasHAS, n),
                                    ColumnaDe(red.RepresaA, red.RepresaFilasHAS, n),
                                    ColumnaDe(red.RepresaS, red.RepresaFilasHAS, n)};
    const bool sube = RevisaAlturas(r.NombreRepresa, "H-A-S", t, l);
    if (sube) {
        RevisaColumna(r.NombreRepresa, t[1], DeA, l);
        RevisaColumna(r.NombreRepresa, t[2], DeS, l);
        RevisaVolumenes(r.NombreRepresa, t, l);
    }
    if (!r.optTabla) return RevisaFunciones(r, t[0], l);
    const std::vector<Columna> q = {ColumnaDe(red.RepresaQH, red.RepresaFilasHQ, n),
                                    ColumnaDe(red.RepresaQQ, red.RepresaFilasHQ, n)};
    if (!RevisaAlturas(r.NombreRepresa, "H-Q", q, l)) return;
    RevisaColumna(r.NombreRepresa, q[1], DeQ, l);
    if (sube) RevisaTope(r.NombreRepresa, q[0].back(), t[0], l);
}

void RevisaLago(const model::Red& red, const model::Lago& e, Hallazgos& l)
{
    const int n = e.numLAGO;
    const std::vector<Columna> t = {
        ColumnaDe(red.LagoH, red.LagoFilas, n), ColumnaDe(red.LagoA, red.LagoFilas, n),
        ColumnaDe(red.LagoS, red.LagoFilas, n), ColumnaDe(red.LagoQ, red.LagoFilas, n)};
    if (!RevisaAlturas(e.NombreLAGO, "H-A-S-Q", t, l)) return;
    RevisaColumna(e.NombreLAGO, t[1], DeA, l);
    RevisaColumna(e.NombreLAGO, t[2], DeS, l);
    RevisaColumna(e.NombreLAGO, t[3], DeQ, l);
    RevisaVolumenes(e.NombreLAGO, t, l);
}

}  // namespace

void RevisaTablas(const model::Red& red, Hallazgos& l)
{
    for (const model::Lago& e : red.ColLagos) {
        RevisaLago(red, e, l);
        RevisaAltura(red, e, e.NombreLAGO, l);
    }
    for (const model::Represa& r : red.ColRepresas) {
        RevisaRepresa(red, r, l);
        RevisaAltura(red, r, r.NombreRepresa, l);
    }
}

}  // namespace checks
