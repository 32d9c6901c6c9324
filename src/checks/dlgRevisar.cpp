// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/dlgRevisar.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "checks/EscribeHallazgos.h"
#include "checks/RevisaAbierto.h"
#include "checks/Sello.h"
#include "forms/CampoNumerico.h"
#include "forms/Procedencia.h"
#include "model/Disco.h"
#include "model/Siro.h"

namespace checks {

using model::Siro;

namespace {

constexpr forms::ReglaNumero ReglaCuenca{.control = "txtCuenca",
                                         .unidad = "ha",
                                         .maximo = 9999999,
                                         .mensaje = "Ingrese un valor numérico entre 0 y 9999999 ",
                                         .vacioEsCero = true};

std::string RutaDelProyecto(const Siro& s)
{
    return model::Ruta(s.Proyecto.DirProyecto, s.Proyecto.NombreProyecto);
}

/// With its first letter large.
std::string Palabra(std::string_view nombre)
{
    std::string palabra(nombre);
    if (!palabra.empty())
        palabra[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(palabra[0])));
    return palabra;
}

forms::Planilla ComoPlanilla(const dlgRevisar& f, const Siro& s)
{
    forms::Planilla p{
        forms::Renglones(forms::DeHoy(s, {.titulo = std::string(TituloDlgRevisar), .tema = f.lblDe})),
        {{"Gravedad", true},
         {"Nro."},
         {"Componente", true},
         {"Qué", true},
         {"Cuánto", true},
         {"Remedio", true},
         {"Arreglo", true}},
        {}};
    p.titulos.push_back(f.lblCuenta);
    for (const Hallazgo& h : f.hallazgos)
        p.filas.push_back({Palabra(Nombre(h.gravedad)), std::to_string(h.numero), h.componente, h.que,
                           h.cuanto, h.remedio, Palabra(Nombre(h.arreglo))});
    return p;
}

void MuestraElegidas(dlgRevisar& f)
{
    forms::Filtra(f.tblHallazgos, [&](std::size_t fila) {
        return f.chkGravedad[static_cast<std::size_t>(f.hallazgos[fila].gravedad)];
    });
}

}  // namespace

std::string EstadoEnMemoria(const Siro& s, const model::Colecciones* dibujo)
{
    const Sello sello = SelloDe(s);
    return sello.proyecto + (dibujo != nullptr ? " dibujo " : " archivos ") + sello.red + " " + sello.lluvia;
}

void RevisaTodo(dlgRevisar& f, const Siro& s, const model::Colecciones* dibujo)
{
    f.abierta = true;
    f.lblHecho.clear();
    const std::string proyecto = RutaDelProyecto(s);
    if (std::exchange(f.proyecto, proyecto) != proyecto) f.txtCuenca.clear();
    f.estado = EstadoEnMemoria(s, dibujo);
    if (s.Proyecto.NombreProyecto.empty()) {
        f.hallazgos.clear();
        f.lblCuenta = "No hay ningún proyecto abierto";
        f.lblDe.clear();
    } else {
        f.hallazgos = RevisaAbierto(s, dibujo, forms::NumeroDeCampo(ReglaCuenca, f.txtCuenca).value_or(0));
        f.lblCuenta = Suma(f.hallazgos);
        f.lblDe = s.Proyecto.NombreProyecto + (dibujo != nullptr
                                                   ? ", con los cambios del dibujo que no se han guardado"
                                                   : ", como está guardado");
    }
    std::vector<int> rangos;
    for (const Hallazgo& h : f.hallazgos)
        rangos.push_back(static_cast<int>(h.gravedad));
    forms::PonFilas(f.tblHallazgos, ComoPlanilla(f, s), std::move(rangos));
    MuestraElegidas(f);
}

void chkGravedad_Click(dlgRevisar& f, Gravedad gravedad, bool seVe)
{
    f.chkGravedad[static_cast<std::size_t>(gravedad)] = seVe;
    MuestraElegidas(f);
}

void AlPulsarEncabezado(dlgRevisar& f, int columna)
{
    forms::PulsaEncabezado(f.tblHallazgos, columna);
}

bool txtCuenca_Sale(dlgRevisar& f, const Siro& s)
{
    return forms::AlSalir(s, ReglaCuenca, f.txtCuenca);
}

std::vector<Hallazgo> ConArreglo(const dlgRevisar& f, const std::vector<std::size_t>& filas, bool deTabla)
{
    std::vector<Hallazgo> l;
    for (const std::size_t fila : filas) {
        if (fila >= f.hallazgos.size()) continue;  // chosen among those that were there before
        const Hallazgo& h = f.hallazgos[fila];
        if (h.arreglo != Arreglo::Ninguno && (h.arreglo == Arreglo::OrdenaTabla) == deTabla) l.push_back(h);
    }
    return l;
}

void AlCorregir(dlgRevisar& f, int cuantos)
{
    if (cuantos == 0)
        f.lblHecho = "No se pudo corregir: lo que el hallazgo nombra ya no está así";
    else
        f.lblHecho = "Corregido en el dibujo, sin guardar (" + std::to_string(cuantos) +
                     "): en el editor, Guardar lo lleva al proyecto y Ctrl+Z lo deshace";
}

void OKButton(dlgRevisar& f)
{
    f.abierta = false;
}

}  // namespace checks
