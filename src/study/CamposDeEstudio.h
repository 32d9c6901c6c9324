// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <limits>

#include "study/Estudio.h"

// The keys of each value that a study's file holds, in their order, with the bounds of its numbers: once for
// reading and for writing, since `v` is either. What it is asked for by Exige must be there; Resto is all
// else.
namespace study {

inline constexpr double SinTope = std::numeric_limits<double>::max();
inline constexpr double MayorQueCero = std::numeric_limits<double>::min();
inline constexpr double TopeEntero = std::numeric_limits<int>::max();

template <typename V>
void Campos(V& v, Maximo& m)
{
    v.Exige("anio", m.anio, 1, 9999);
    v.Exige("valor", m.valor, 0, SinTope);
    v("dias", m.dias, 0, 366);
}

template <typename V>
void Campos(V& v, SerieDeMaximos& s)
{
    v.Exige("duracion_min", s.duracion, MayorQueCero, SinTope);
    v("lectura_diaria", s.lecturaDiaria);
    v("ley", s.ley);
    v("metodo", s.metodo);
    v("motivo", s.motivo);
    v("maximos", s.maximos);
    v.Resto(s.resto);
}

template <typename V>
void Campos(V& v, Estacion& e)
{
    v("nombre", e.nombre);
    v("latitud", e.latitud, -90, 90);
    v("longitud", e.longitud, -180, 180);
    v("altitud_m", e.altitud, -1000, 10000);
    v("fuente", e.fuente);
    v("notas", e.notas);
    v("series", e.series);
    v.Resto(e.resto);
}

template <typename V>
void Campos(V& v, Razon& r)
{
    v.Exige("duracion_min", r.duracion, MayorQueCero, SinTope);
    v.Exige("razon", r.razon, MayorQueCero, SinTope);
}

template <typename V>
void Campos(V& v, Coeficiente& c)
{
    v.Exige("simbolo", c.simbolo);
    v.Exige("valor", c.valor, -SinTope, SinTope);
    v("recurrencia_anios", c.recurrencia, 0, SinTope);
}

template <typename V>
void Campos(V& v, Idf& i)
{
    v("origen", i.origen);
    v("estacion", i.estacion);
    v("familia", i.familia);
    v("desagregacion", i.desagregacion);
    v("error_relativo", i.errorRelativo);
    v("factor_diario", i.factorDiario, MayorQueCero, SinTope);
    v("coeficientes", i.coeficientes);
    v("razones", i.razones);
    v("reduccion_areal", i.reduccion);
    v("area_km2", i.area, 0, SinTope);
    v.Resto(i.resto);
}

template <typename V>
void Campos(V& v, TormentaDeDiseno& t)
{
    v("patron", t.patron);
    v("duracion_min", t.duracion, MayorQueCero, SinTope);
    v("recurrencia_anios", t.recurrencia, 0, SinTope);
    v("lamina_mm", t.lamina, MayorQueCero, SinTope);
    v("paso_min", t.paso, MayorQueCero, SinTope);
    v("avance", t.avance, 0, 1);
    v("cuartil", t.cuartil, 1, 4);
    v("periodos", t.periodos);
    v("archivo", t.archivo);
    v("tabla", t.tabla, 1, 3);
    v("distribucion", t.distribucion, 1, 3);
    v.Resto(t.resto);
}

template <typename V>
void Campos(V& v, Derivado& d)
{
    v("fecha", d.fecha);
    v("destino", d.destino);
    v("origen", d.origen);
}

template <typename V>
void Campos(V& v, Taller& t)
{
    v("estaciones", t.estaciones);
    v("semilla", t.semilla);
    v("remuestras", t.remuestras, 0, TopeEntero);
    v("posicion", t.posicion, 0, 1);
    v("idf", t.idf);
    v("tormenta", t.tormenta);
    v("derivados", t.derivados);
    v.Resto(t.resto);
}

template <typename V>
void Campos(V& v, Estudio& e)
{
    v("taller", e.taller);
    v.Resto(e.resto);
}

}  // namespace study
