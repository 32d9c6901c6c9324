// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string_view>

#include "checks/Hallazgo.h"

namespace checks {

/// A rule for the findings of a run: its number for ever, how bad what it finds is, its words.
struct ReglaDeAviso {
    int numero;
    Gravedad gravedad;
    bool conResultados;  ///< it is looked for in runs that have results
    std::string_view que, remedio;
};

// clang-format off
inline constexpr auto ReglasDeAvisos = std::to_array<ReglaDeAviso>({
    {101, Gravedad::Error, true, "El caudal todavía subía al terminar la corrida: el máximo que se muestra no es el pico",
     "Aumente el tiempo agregado a la duración de la tormenta y vuelva a correr"},
    {102, Gravedad::Nota, true, "El final de la corrida corta agua que estaba en camino",
     "Si interesa el volumen del hidrograma, aumente el tiempo agregado a la duración de la tormenta"},
    {103, Gravedad::Error, true, "El agua supera el tope de la tabla de alturas: lo que no cabe no sale ni se almacena como debe",
     "Agregue filas más altas a la tabla Altura-Superficie-Almacenamiento y a la descarga"},
    {104, Gravedad::Error, true, "El agua supera el tope de la descarga: por encima de él no hay caudal que valga",
     "Lleve la tabla H-Q o la H máx de las funciones hasta el tope de la tabla de alturas"},
    {105, Gravedad::Error, true, "El balance de agua del componente no cierra",
     "Corrija lo que dicen los demás avisos del componente; en Runge Kutta, además, la superficie debe concordar con el almacenamiento, o el paso ser menor"},
    {106, Gravedad::Error, true, "El balance de agua de la cuenca no cierra",
     "Corrija los componentes cuyo balance no cierra y los que no están enlazados"},
    {107, Gravedad::Aviso, false, "Un coeficiente de Muskingum es negativo: el hidrograma puede oscilar o bajar de cero",
     "Elija K, x y paso con 2Kx <= paso <= 2K(1-x)"},
    {108, Gravedad::Aviso, false, "El viaje por el tramo dura menos de medio paso: sale lo que entra, sin demora",
     "Use un paso de salida menor, o una el tramo con el siguiente"},
    {109, Gravedad::Aviso, true, "El paso es más largo que la quinta parte de la subida: el pico puede quedar entre dos pasos",
     "Use un paso de salida menor"},
    {110, Gravedad::Aviso, false, "El traslado en la UEH dura menos que un paso",
     "Use un paso de salida menor, o revise longitud y velocidad de la gota"},
    {111, Gravedad::Aviso, false, "Hay más de una salida",
     "Si la cuenca tiene una sola, corrija el campo <Drena a> de las demás"},
    {112, Gravedad::Aviso, false, "El componente no está enlazado con los demás",
     "Corrija el enlace en el editor, o elimine el componente"},
    {113, Gravedad::Error, false, "Una represa o un lago drena a otro, que recoge solamente de UEHs y cauces: su agua se pierde",
     "Ponga un tramo de cauce entre los dos"},
    {114, Gravedad::Nota, false, "La represa tiene descargas que no se usan",
     "Elija en sus propiedades la que vale y quite la otra"},
    {115, Gravedad::Aviso, true, "La lluvia no supera la retención: la UEH no da escorrentía",
     "Revise la retensión Z y la tormenta"},
    {116, Gravedad::Error, true, "El almacenamiento es negativo",
     "Corrija la tabla Altura-Superficie-Almacenamiento"},
    {117, Gravedad::Error, true, "El caudal que sale es negativo",
     "Revise los parámetros de Muskingum, la descarga y los caudales iniciales"},
    {118, Gravedad::Error, false, "Hubo números que no cabían en 16 o 32 bits y se dejaron de lado",
     "Use pasos mayores o menos tiempo agregado, y revise las superficies"},
    {119, Gravedad::Nota, true, "Un volumen de 32 bits perdió sus últimas unidades",
     "Tome los volúmenes con seis cifras"},
    {120, Gravedad::Aviso, false, "La corrida avisó o preguntó, y siguió",
     "Corrija los datos de los que habla el mensaje"},
    {121, Gravedad::Error, false, "La corrida no llegó a su fin",
     "Corrija los datos de los que habla el mensaje"},
    // of the storms of a series, by reason, the last four rows
    {122, Gravedad::Aviso, false, "La serie saltea tormentas que duran menos que el paso del modelo",
     "Use un paso del modelo no mayor que la menor duración"},
    {123, Gravedad::Nota, false, "La serie saltea tormentas de duraciones sin tildar en la configuración",
     "Tilde esas duraciones en la configuración, si hacen falta"},
    {123, Gravedad::Nota, false, "La serie saltea tormentas de recurrencias sin tildar en la configuración",
     "Tilde esas recurrencias en la configuración, si hacen falta"},
    {124, Gravedad::Error, false, "La serie termina en una tormenta de lámina o duración 0: ni ella ni las que siguen se corren",
     "Corrija o quite esa fila de la tabla P-D-R"},
});
// clang-format on

}  // namespace checks
