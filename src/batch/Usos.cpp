// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/Opciones.h"

// How each order is called, as --help shows it.
namespace batch {
namespace {

constexpr std::string_view TextoUso =
    R"(Uso: siro-lote una   CONF [opciones]    una tormenta
     siro-lote serie CONF [opciones]    una serie P-D-R

CONF es el archivo <Proyecto>_Conf.vlm de un proyecto.

  --trabajo DIR           tablas compartidas y archivos de resultados (el directorio del programa)
  --forma N               0, 1 una tormenta escrita; 3 una lámina por UEH; 4 una tormenta real (0)
  --pp MM                 precipitación [mm] (60)
  --dur MIN               duración [min] (60)
  --rec AÑOS              recurrencia [años] (0)
  --distribucion N        distribución temporal, 0 a 7 (0)
  --paso-pp MIN           paso del modelo [min] (10)
  --paso-q MIN            paso de salida de los caudales [min] (10)
  --pp-ueh V,V,...        precipitación de cada UEH [mm], en el orden del archivo, para --forma 3
  --tormenta NOMBRE       archivo _pt.vlm de la tormenta real, en el directorio del proyecto, para --forma 4
  --tabla K               tabla P-D-R de la serie, 0 a 3 (0)
  --pizarra               el texto de la Pizarra va a la salida estándar
  --responde si|no        respuesta a toda pregunta (si)
  --hilos N               hilos de una serie, hasta 1024; 0: todos los núcleos (0)
  --resultados ARCHIVO    resultados en CSV
  --guarda NOMBRE         guarda la corrida con ese nombre en la carpeta <Proyecto>_corridas
  --avisos                avisos, balance de agua y huella de la corrida, en la salida estándar
  --json                  lo de --avisos, en JSON
  --ayuda, --help         este texto

Estado de salida: 0 la corrida llegó a su fin; 1 un control o la entrada dañada la terminó, o no se pudo
                  escribir un resultado;
                  2 la línea de órdenes es errónea; 3 una respuesta No o un mensaje fatal terminó el programa.
)";

constexpr std::string_view TextoUsoRevisa =
    R"(Uso: siro-lote revisa CONF [opciones]    revisa un proyecto antes de correrlo

Dice todo aquello por lo que una corrida se detendría o preguntaría, y los datos que no pueden ser.
La tormenta y los pasos son los de la orden una: --forma, --pp, --dur, --rec, --distribucion, --paso-pp,
--paso-q, --pp-ueh, --tormenta, y el directorio --trabajo.

  --cuenca HA             superficie medida de la cuenca [ha], que las UEHs deben sumar
  --json                  los hallazgos en JSON
  --ayuda, --help         este texto

Estado de salida: 0 no hay errores; 1 hay alguno; 2 la línea de órdenes es errónea.
)";

constexpr std::string_view TextoUsoVerifica =
    R"(Uso: siro-lote verifica [--json]

Corre los casos publicados y dice, de cada uno, la fuente, la cifra impresa, la del programa, el desvío y la
tolerancia.

  --json                  en JSON, con las series para un gráfico
  --ayuda, --help         este texto

Estado de salida: 0 todos están dentro de la tolerancia; 1 alguno no, o no se pudo escribir; 2 la línea de órdenes
                  es errónea.
)";

constexpr std::string_view TextoUsoFrecuencia =
    R"(Uso: siro-lote frecuencia ARCHIVO [opciones]            láminas por recurrencia de los máximos anuales
     siro-lote frecuencia --registro ARCHIVO [opciones]  lo mismo; los máximos salen de un registro de lluvia

ARCHIVO tiene un renglón por año: año;valor o fecha;valor (dd/mm/aaaa, aaaa-mm-dd), en mm, y, donde se sepa, una
tercera columna con los días con registro. Si el primer renglón da duraciones (Año;5 min;1 h), hay una columna por
duración. Sin valor, el año queda como hueco; 0 es un año sin lluvia. Hacen falta 10 años con lluvia por lo menos.
Un registro tiene un renglón por lectura: fecha, hora y lámina caída desde la anterior, o fecha y lámina del día.

  --mes-inicial M         del registro, el mes en que comienza el año, que lleva el número de aquel en que comienza (1)
  --duracion D            la de los máximos, en minutos: del registro, en ventanas móviles; del ARCHIVO, su columna
                          (1440; la única)
  --dias-minimos N        los años con menos días de registro no se ajustan (0)
  --metodo M              momentos; l, momentos L; mv, máxima verosimilitud (l)
  --ley L                 una sola: gumbel, gev, exponencial, ln2, ln3, pearson3, logpearson3, sqrt-etmax (todas)
  --bajos B               con el método momentos, los valores bajos de logpearson3 como en Bulletin 17B o 17C: 17b,
                          17c (cuentan como los demás)
  --asimetria G           con el método momentos, la asimetría regional que se pondera con la de logpearson3
  --posicion A            la a de las posiciones (i - a)/(n + 1 - 2a) del papel de probabilidad, 0 a 0.5 (0.4, Cunnane)
  --ecm-asimetria E       el error medio cuadrático de esa asimetría (0.302)
  --remuestras N          remuestreos para las bandas y las p, 100 a 100000; 0: ninguno (1000)
  --semilla N             la de los remuestreos: la misma da los mismos resultados (1)
  --hilos N               hilos, hasta 1024; 0: todos los núcleos. No cambia los resultados (0)
  --json                  todo, en JSON
  --csv                   los cuantiles con sus bandas, en CSV
  --ayuda, --help         este texto

Estado de salida: 0 hay resultados; 1 los datos no se pueden ajustar, o no se pudo leer o escribir; 2 la línea de
                  órdenes es errónea.
)";

constexpr std::string_view TextoUsoIdf =
    R"(Uso: siro-lote idf ARCHIVO [opciones]                 de máximos diarios, desagregados
     siro-lote idf --series D=ARCHIVO,D=ARCHIVO,...     de máximos de varias duraciones D [min]
     siro-lote idf --familia F --coeficientes S=V,...   de coeficientes conocidos

Da la lámina [mm] y la intensidad [mm/h] de las 17 duraciones y las 14 recurrencias de las tablas P-D-R. Los
archivos de máximos son los de la orden frecuencia.

  --series D=ARCHIVO,...  máximos de varias duraciones, un archivo cada una
  --ley L, --metodo M     la ley de los máximos y su ajuste, como en frecuencia (la recomendada, por momentos L)
  --lectura L             diaria: los máximos de un día son de una lectura por día; corrida: de 24 horas (diaria)
  --factor X              de la lectura diaria a 24 horas; no se aplica dos veces (1.13)
  --desagregacion D       dick-peschke, 5.2-ic, 5.2-ic-2016, dit, razones (dick-peschke)
  --razones D=R,...       parte de la lámina de 24 horas que cae en D minutos; para razones y 5.2-ic-2016
  --familia F             sherman, bernard, talbot, wenzel, dit, libre; ninguna: sin curvas (sherman)
  --criterio C            log: cuadrados de los logaritmos; relativo: de los errores relativos (log)
  --coeficientes S=V,...  de la familia (k=822,a=0.2,b=10,c=0.8; de libre, a@10=..), o de la desagregación:
                          I1Id, kb, B
  --reduccion R           areal: 5.2-ic, con --area; propia, con el coeficiente KA (ninguna)
  --area KM2              área de la cuenca
  --json                  todo, en JSON
  --csv                   duracion,recurrencia,lamina,intensidad
  --ayuda, --help         este texto

Estado de salida: 0 hay curvas; 1 no las hay con esos datos, o no se pudo leer o escribir; 2 la línea de órdenes
                  es errónea.
)";

constexpr std::string_view TextoUsoTormenta =
    R"(Uso: siro-lote tormenta --pp MM [opciones]            una tormenta de lámina conocida
     siro-lote tormenta ARCHIVO [opciones]             de curvas, como en la orden idf: máximos diarios,
     siro-lote tormenta --series D=ARCHIVO,...           de varias duraciones,
     siro-lote tormenta --familia F --coeficientes S=V,...   o coeficientes

Reparte una tormenta en el tiempo y dice su hietograma, el de los porcentajes enteros que guarda una distribución
personal y el que el motor corre con ellos.

  --patron P              bloques, chicago, equilibrada, scs-i, scs-ia, scs-ii, scs-iii, huff, noaa14, propia,
                          registrada (bloques); los tres primeros piden curvas
  --pp MM                 lámina de la tormenta (la de las curvas)
  --dur MIN               duración, múltiplo del paso (120)
  --rec AÑOS              recurrencia de la lámina de las curvas (50)
  --paso MIN              largo de los períodos (10)
  --avance R              momento del pico de chicago, como parte de la duración (0.375)
  --cuartil N             el de huff y noaa14, 1 a 4 (1)
  --probabilidad P        de que haya caído más, de noaa14: 10, 20, ... 90 (50)
  --periodos V,V,...      lluvia de los períodos de propia, en cualquier unidad
  --registrada ARCHIVO    tormenta real _pt.vlm de la que sale registrada
  --ley, --metodo, --lectura, --factor, --desagregacion, --razones, --familia, --criterio, --coeficientes,
  --reduccion, --area     las curvas, como en la orden idf

  --escribe-distribucion K  escribe el patrón en la distribución personal K, 1 a 3
  --escribe-tabla K       llena la tabla P-D-R K, 1 a 3, con las láminas de las curvas
  --duraciones D,D,...    las de esa tabla (las 17 que admite)
  --recurrencias R,R,...  las de esa tabla (las 14 que admite)
  --trabajo DIR           directorio de esas tablas, que son de todos los proyectos (el del programa)
  --reemplaza             escribe encima de lo que haya; si no, se niega
  --json                  todo, en JSON
  --csv                   minutos,lamina,acumulada,intensidad,porcentaje,corrida
  --ayuda, --help         este texto

Estado de salida: 0 hay tormenta, y se escribió; 1 no la hay con esos datos, lo que se iba a escribir ya tiene
                  algo, o no se pudo leer o escribir; 2 la línea de órdenes es errónea.
)";

constexpr std::string_view TextoUsoSensibilidad =
    R"(Uso: siro-lote sensibilidad CONF [opciones]    de qué parámetros depende un resultado

Corre el proyecto muchas veces con otros valores de los parámetros que el estudio mueve, y dice cuánto depende de
cada uno el pico, su hora, el volumen, un nivel o un puntaje: de a uno (tornado), Morris o Sobol. Lo que se pide está
en P_Estudio.json, o en el archivo de --tarea, con lo que aquel tiene bajo "ajuste". La tormenta en mano y los pasos
son los de la orden una: --forma, --pp, --dur, --rec, --distribucion, --paso-pp, --paso-q, --pp-ueh, --tormenta, y el
directorio --trabajo.

  --tarea ARCHIVO         lo que se pide, en JSON (el estudio del proyecto)
  --hilos N               hilos, hasta 1024; 0: todos los núcleos. No cambia los resultados (0)
  --guarda NOMBRE         guarda lo pedido y lo hallado con ese nombre en la carpeta <Proyecto>_corridas
  --json                  todo, en JSON
  --csv                   parametro y sus índices
  --ayuda, --help         este texto

Estado de salida: 0 hay resultados; 1 no se puede correr lo que se pide, o no se pudo leer o escribir; 2 la línea de
                  órdenes es errónea.
)";

constexpr std::string_view TextoUsoConjunto =
    R"(Uso: siro-lote conjunto CONF [opciones]                          la incertidumbre de un proyecto
     siro-lote conjunto CONF --parte I/N --parcial ARCHIVO [...]  una parte de ella; une las junta

Sortea los juegos de parámetros que la tarea pide, corre cada uno y dice la banda del hidrograma y la distribución
del pico, su hora, el volumen, el nivel y el rebose de un componente. El resultado es el mismo con cualquier número
de hilos y en cualesquiera partes.
La tormenta en mano es la de la orden una: --forma, --pp, --dur, --rec, --distribucion, --paso-pp, --paso-q,
--pp-ueh, --tormenta, y el directorio --trabajo.

  --tarea ARCHIVO         qué se pide, en JSON: lo que el estudio guarda en "ajuste" (el estudio del proyecto)
  --hilos N               hilos, hasta 1024; 0: todos los núcleos. No cambia los resultados (0)
  --guarda NOMBRE         guarda lo pedido y lo hallado con ese nombre en la carpeta <Proyecto>_corridas
  --parte I/N             corre la parte I de N del conjunto, con --parcial (1/1)
  --parcial ARCHIVO       escribe la parte en un archivo, para la orden une
  --json                  todo, en JSON
  --csv                   medida,unidad,minutos,peso,media,minimo,p5,p25,p50,p75,p95,maximo
  --ayuda, --help         este texto

Estado de salida: 0 hay resultados; 1 la tarea no se puede hacer, o no se pudo leer o escribir; 2 la línea de
                  órdenes es errónea.
)";

constexpr std::string_view TextoUsoUne =
    R"(Uso: siro-lote une PARCIAL PARCIAL ... [opciones]

Junta, en cualquier orden, las partes que escribió conjunto --parcial, y muestra lo mismo que el conjunto entero.

  --json                  todo, en JSON
  --csv                   como en conjunto
  --ayuda, --help         este texto

Estado de salida: 0 hay resultados; 1 falta una parte, hay una dos veces, no son del mismo conjunto, o no se pudo
                  leer o escribir; 2 la línea de órdenes es errónea.
)";

constexpr std::string_view TextoUsoAjusta =
    R"(Uso: siro-lote ajusta CONF [opciones]

Busca los valores de los parámetros con los que las corridas más se acercan a las crecidas observadas, y dice cuáles
son identificables, los rangos de todos los conjuntos casi iguales y el puntaje de cada evento. Parámetros, eventos,
método, puntaje, presupuesto y semilla están en P_Estudio.json, bajo "ajuste". No cambia el proyecto.

  --tarea ARCHIVO         lo que se pide, en JSON, como lo que el estudio tiene bajo "ajuste" (el estudio)
  --corridas ARCHIVO      escribe todas las corridas de la búsqueda, en CSV: sus valores y su puntaje
  --hilos N               hilos, hasta 1024; 0: todos los núcleos. No cambia los resultados (0)
  --guarda NOMBRE         guarda lo pedido y lo hallado con ese nombre en la carpeta <Proyecto>_corridas
  --json                  todo menos las corridas, en JSON
  --csv                   parametro,unidad,minimo,maximo,antes,mejor,cerca_minimo,cerca_maximo,aviso
  --trabajo, --forma, --pp, --dur, --rec, --distribucion, --paso-pp, --paso-q, --pp-ueh, --tormenta
                          la tormenta en mano y los pasos, como en la orden una
  --ayuda, --help         este texto

Estado de salida: 0 hay un mejor conjunto; 1 lo pedido no se puede hacer, ninguna corrida dio puntaje, o no se pudo
                  leer o escribir; 2 la línea de órdenes es errónea.
)";

constexpr std::string_view TextoUsoCompara =
    R"(Uso: siro-lote compara LADO LADO ... [opciones]

Dice en qué difieren los parámetros de dos corridas o más, y qué picos, horas, volúmenes y alturas da cada una, con las
diferencias con la primera en unidades y en %. Un LADO es CONF, el archivo <Proyecto>_Conf.vlm de un proyecto, que se
corre con la tormenta de las opciones; o CONF#NOMBRE, una corrida que el proyecto guarda en P_corridas, por su nombre o el
de su archivo, que trae la suya. No cambia ningún proyecto.

  --tabla K               la serie de la tabla P-D-R K, 0 a 3, en lugar de una tormenta
  --hilos N               hilos de una serie, hasta 1024; 0: todos los núcleos. No cambia los resultados (0)
  --json                  todo, con los hidrogramas, en JSON
  --csv                   tabla,componente,nombre,unidad,lado,valor,diferencia,por_ciento
  --trabajo, --forma, --pp, --dur, --rec, --distribucion, --paso-pp, --paso-q, --pp-ueh, --tormenta
                          la tormenta y los pasos, como en la orden una
  --ayuda, --help         este texto

Estado de salida: 0 se compararon, difieran o no; 1 un lado no se pudo correr hasta el fin, o no se pudo escribir; 2 la
                  línea de órdenes es errónea.
)";

constexpr std::string_view TextoUsoCorridas =
    R"(Uso: siro-lote corridas CONF [opciones]    las corridas guardadas de un proyecto, la última primero

Las guarda el programa de escritorio al correr, y siro-lote con --guarda, en la carpeta <Proyecto>_corridas junto a
CONF, un archivo cada una. Un archivo que no es una corrida, o está dañado, se lista con el motivo.

  --json                  todo lo que cada una dice de sí, en JSON
  --csv                   un renglón por corrida, con la salida de mayor pico
  --ayuda, --help         este texto

Estado de salida: 0 se listaron; 1 no se pudo leer o escribir; 2 la línea de órdenes es errónea.
)";

}  // namespace

std::string_view UsoCompara()
{
    return TextoUsoCompara;
}

std::string_view UsoCorridas()
{
    return TextoUsoCorridas;
}

std::string_view UsoConjunto()
{
    return TextoUsoConjunto;
}

std::string_view UsoUne()
{
    return TextoUsoUne;
}

std::string_view UsoSensibilidad()
{
    return TextoUsoSensibilidad;
}

std::string_view UsoAjusta()
{
    return TextoUsoAjusta;
}

std::string_view UsoTormenta()
{
    return TextoUsoTormenta;
}

std::string_view UsoIdf()
{
    return TextoUsoIdf;
}

std::string_view Uso()
{
    return TextoUso;
}

std::string_view UsoRevisa()
{
    return TextoUsoRevisa;
}

std::string_view UsoVerifica()
{
    return TextoUsoVerifica;
}

std::string_view UsoFrecuencia()
{
    return TextoUsoFrecuencia;
}

}  // namespace batch
