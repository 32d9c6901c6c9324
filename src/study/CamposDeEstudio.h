// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <limits>

#include "study/Estudio.h"
#include "study/Ficha.h"

// The keys of each value that a study's file holds, in their order, with the bounds of its numbers: once for
// reading and for writing, since `v` is either. What it is asked for by Exige must be there; Resto is all
// else.
namespace study {

inline constexpr double SinTope = std::numeric_limits<double>::max();
inline constexpr double MayorQueCero = std::numeric_limits<double>::min();
inline constexpr double TopeEntero = std::numeric_limits<int>::max();
inline constexpr double TopeMinutos = std::numeric_limits<std::int16_t>::max();

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
    v("bajos", s.bajos);
    v("asimetria_regional", s.asimetria, -3, 3);
    v("ecm_asimetria", s.ecmAsimetria, MayorQueCero, SinTope);
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
    v("probabilidad_pct", t.probabilidad, 10, 90);
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
void Campos(V& v, Ventana& w)
{
    v.Exige("desde_min", w.desde, -SinTope, SinTope);
    v.Exige("hasta_min", w.hasta, -SinTope, SinTope);
    v("peso", w.peso, 0, SinTope);
}

template <typename V>
void Campos(V& v, PuntoDeCurva& p)
{
    v.Exige("nivel_m", p.nivel, -SinTope, SinTope);
    v.Exige("caudal_m3s", p.caudal, 0, SinTope);
}

template <typename V>
void Campos(V& v, Observacion& o)
{
    v.Exige("componente", o.componente);
    v("magnitud", o.magnitud);
    v("promedio_min", o.promedio, 0, SinTope);
    v("peso", o.peso, 0, SinTope);
    v("ventanas", o.ventanas);
    v("curva", o.curva);
    v("interpolacion", o.interpolacion);
    v("fuente", o.fuente);
    v("notas", o.notas);
    v("archivo", o.archivo);
    v.Resto(o.resto);
}

template <typename V>
void Campos(V& v, LluviaDeEvento& l)
{
    v("origen", l.origen);
    v("archivo", l.archivo);
    v("lamina_mm", l.lamina, 0, SinTope);
    v("duracion_min", l.duracion, 0, TopeMinutos);
    v("distribucion", l.distribucion, 0, 7);
}

template <typename V>
void Campos(V& v, Evento& e)
{
    v("nombre", e.nombre);
    v("inicio", e.inicio);
    v("papel", e.papel);
    v("peso", e.peso, 0, SinTope);
    v("lluvia", e.lluvia);
    v("observaciones", e.observaciones);
    v.Resto(e.resto);
}

template <typename V>
void Campos(V& v, ValorPosible& p)
{
    v.Exige("valor", p.valor, -SinTope, SinTope);
    v("peso", p.peso, 0, SinTope);
}

template <typename V>
void Campos(V& v, Parametro& p)
{
    v("componentes", p.componentes);
    v.Exige("campo", p.campo);
    v("modo", p.modo);
    v("minimo", p.minimo, -SinTope, SinTope);
    v("maximo", p.maximo, -SinTope, SinTope);
    v("logaritmica", p.logaritmica);
    v("activo", p.activo);
    v("distribucion", p.distribucion);
    v("centro", p.centro, -SinTope, SinTope);
    v("dispersion", p.dispersion, 0, SinTope);
    v("valores", p.valores);
    v.Resto(p.resto);
}

template <typename V>
void Campos(V& v, Medida& m)
{
    v("que", m.que);
    v("componente", m.componente);
    v("evento", m.evento);
    v("puntaje", m.puntaje);
}

template <typename V>
void Campos(V& v, Sensibilidad& s)
{
    v("metodo", s.metodo);
    v("medida", s.medida);
    v("trayectorias", s.trayectorias, 2, 1'000'000);
    v("niveles", s.niveles, 2, 1000);
    v("base", s.base, 2, 1 << 24);
    v("semilla", s.semilla);
    v.Resto(s.resto);
}

template <typename V>
void Campos(V& v, Juego& j)
{
    v.Exige("valores", j.valores);
    v.Exige("puntaje", j.puntaje, -SinTope, SinTope);
}

template <typename V>
void Campos(V& v, Calibracion& c)
{
    v("metodo", c.metodo);
    v("puntaje", c.puntaje);
    v("corridas", c.corridas, 1, 100'000'000);
    v("complejos", c.complejos, 1, 1000);
    v("cercania", c.cercania, 0, SinTope);
    v("semilla", c.semilla);
    v("campos", c.campos);
    v("cercanos", c.cercanos);
    v("fecha", c.fecha);
    v.Resto(c.resto);
}

template <typename V>
void Campos(V& v, Incertidumbre& i)
{
    v("miembros", i.miembros, 1, 1'000'000);
    v("muestreo", i.muestreo);
    v("medida", i.medida);
    v("glue", i.glue);
    v("umbral", i.umbral, -SinTope, SinTope);
    v("semilla", i.semilla);
    v.Resto(i.resto);
}

template <typename V>
void Campos(V& v, Ajuste& a)
{
    v("eventos", a.eventos);
    v("parametros", a.parametros);
    v("sensibilidad", a.sensibilidad);
    v("calibracion", a.calibracion);
    v("incertidumbre", a.incertidumbre);
    v.Resto(a.resto);
}

template <typename V>
void Campos(V& v, Estudio& e)
{
    v("taller", e.taller);
    v("ajuste", e.ajuste);
    v.Resto(e.resto);
}

template <typename V>
void Campos(V& v, PicoDeSalida& p)
{
    v.Exige("componente", p.componente);
    v.Exige("caudal_m3s", p.caudal, -SinTope, SinTope);
    v("minuto", p.minuto, -SinTope, SinTope);
    v("tormenta", p.tormenta);
}

template <typename V>
void Campos(V& v, Ficha& f)
{
    v("nombre", f.nombre);
    v("nota", f.nota);
    v("fijada", f.fijada);
    v.Exige("proyecto", f.proyecto);
    v.Exige("clase", f.clase);
    v.Exige("cuando", f.cuando);
    v("quien", f.quien);
    v("tormenta", f.tormenta);
    v("salidas", f.salidas);
    v("resumen", f.resumen);
    v("errores", f.errores, 0, TopeEntero);
    v("avisos", f.avisos, 0, TopeEntero);
    v("notas", f.notas, 0, TopeEntero);
    v("segundos", f.segundos, 0, SinTope);
    v("programa", f.programa);
    v("huella_entradas", f.huellaEntradas);
    v("huella_resultados", f.huellaResultados);
    v("huella", f.huella);
    v.Resto(f.resto);
}

template <typename V>
void Campos(V& v, LluviaDeCorrida& l)
{
    v.Exige("forma", l.forma, 0, 4);
    v.Exige("distribucion", l.distribucion, 0, 7);
    v("tabla", l.tabla, 0, 3);
    v.Exige("lamina_mm", l.lamina, -SinTope, SinTope);
    v.Exige("duracion_min", l.duracion, -TopeMinutos, TopeMinutos);
    v("recurrencia_anios", l.recurrencia, -TopeMinutos, TopeMinutos);
    v("por_ueh_mm", l.porUEH);
    v("bloques_mm", l.bloques);
    v("numero_de_bloques", l.nroBloques, -TopeMinutos, TopeMinutos);
    v.Exige("paso_min", l.pasoPp, -TopeMinutos, TopeMinutos);
    v.Exige("paso_de_salida_min", l.pasoQ, -TopeMinutos, TopeMinutos);
    v("tiempo_agregado_min", l.tiempoAgregado, -SinTope, SinTope);
    v("serie_lamina_mm", l.serieP);
    v("serie_duracion_min", l.serieD);
    v("serie_recurrencia_anios", l.serieR);
}

}  // namespace study
