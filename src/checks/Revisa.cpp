// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/Revisa.h"

#include <cmath>

#include "checks/AvisosDeCorrida.h"
#include "checks/Reglas.h"
#include "engine/Calcula.h"
#include "engine/mdlProceso1.h"
#include "model/Numeros.h"
#include "model/Siro.h"
#include "model/Texto.h"

namespace checks {

using model::NumeroATexto;

namespace {

constexpr double DesvioDeArea = 1;  // [%] of the measured basin

void RevisaSuperficie(const model::Red& red, double areaCuenca, Hallazgos& l)
{
    if (!(areaCuenca > 0)) return;
    double suma = 0;
    for (const model::UEH& u : red.ColUEHs)
        suma += u.Area;
    const double desvio = 100 * (suma - areaCuenca) / areaCuenca;
    if (std::fabs(desvio) <= DesvioDeArea) return;
    l.push_back({Gravedad::Aviso, 250, "", "Las superficies de las UEHs no suman la cuenca medida",
                 NumeroATexto(model::Redondea(suma, 2)) + " ha, " + NumeroATexto(model::Redondea(desvio, 2)) +
                     " % de diferencia con " + NumeroATexto(areaCuenca) + " ha",
                 "Revise las superficies, o si falta o sobra una UEH."});
}

/// With a depth or a duration of 0 a run ends before it begins.
bool HayTormenta(const model::Siro& s, Hallazgos& l)
{
    if (s.Tormenta.PpTormenta != 0 && s.Tormenta.DurTormenta != 0) return true;
    l.push_back({Gravedad::Error, 206, "", "No hay tormenta: la precipitación o la duración es 0",
                 NumeroATexto(s.Tormenta.PpTormenta) + " mm, " +
                     NumeroATexto(std::int32_t{s.Tormenta.DurTormenta}) + " min",
                 "Cargue la tormenta en Entradas, Precipitaciones."});
    return false;
}

}  // namespace

std::vector<Hallazgo> Revisa(const model::Siro& s, double areaCuenca)
{
    Hallazgos l;
    RevisaEnlaces(s.Red, l);
    RevisaComponentes(s.Red, s.Pasos.PasoQ, l);
    RevisaTablas(s.Red, l);
    RevisaRangos(s.Red, s.Pasos.PasoQ, l);
    RevisaSuperficie(s.Red, areaCuenca, l);
    if (HayTormenta(s, l))
        TraduceDichos(s.Red, engine::Calcula(s.Red, s.Tormenta, s.Pasos, s.TablasDeLluvia), l);
    OrdenaPorGravedad(l);
    return l;
}

std::string EnUnaLinea(std::string_view texto)
{
    std::string linea;
    for (const char c : texto)
        if (c != '\r') linea += c == '\n' ? ' ' : c;
    return linea;
}

Hallazgo DeApertura(const model::Mensaje& mensaje)
{
    const std::string linea = EnUnaLinea(mensaje.texto);
    Hallazgo h{Gravedad::Nota, 200, "", "Al abrir el proyecto: " + linea, "", "Verifique."};
    if (mensaje.icono != model::Icono::Ninguno) h.gravedad = Gravedad::Aviso;
    if (linea.starts_with("Error")) {
        h.gravedad = Gravedad::Error;
        h.remedio = "Restaure el archivo de una copia, o vuelva a cargar esos datos.";
    }
    return h;
}

void RevisaDirTrabajo(const model::Siro& s, std::vector<Hallazgo>& hallazgos)
{
    const std::string& directorio = s.Proyecto.DirTrabajo;
    const auto anota = [&](std::string que, std::string cuanto) {
        hallazgos.push_back({Gravedad::Error, 280, "", std::move(que), std::move(cuanto),
                             "Elija con --trabajo un directorio en el que se pueda escribir."});
    };
    if (!s.Disco.HayDirectorio(directorio)) return anota("El directorio de trabajo no está", directorio);
    const std::string texto = model::Ruta(directorio, engine::ArchivoPizarra);
    if (s.Disco.HayDirectorio(texto))
        anota("Un directorio ocupa el lugar de un archivo de resultados", texto);
}

}  // namespace checks
