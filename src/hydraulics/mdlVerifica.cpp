// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/mdlVerifica.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

#include "hydraulics/FuncionesFQ.h"
#include "hydraulics/mdlFQs.h"
#include "hydraulics/mdlHAS.h"
#include "model/Avisos.h"
#include "model/Numeros.h"
#include "model/TablasEmbalse.h"
#include "model/Texto.h"

namespace hydraulics {

using model::NumeroATexto;
using model::Redondea;
using model::Represa;
using model::Simple;
using model::Siro;
using model::Val;

namespace {

constexpr int PartesDelRango = 50;
constexpr int DecimalesPaso = 2;
constexpr double MaximoRenglones = 1000.0;
constexpr std::string_view PasoPorDefecto = "0.1";

// --- words, kept as they stand ---

constexpr std::string_view TituloNumero = "Verificación de funciones HSV en Represas: Nro. de Represa";
constexpr std::string_view PideNumero = "¿Número de Represa";
constexpr std::string_view TituloOpcion = "Lista y verificación de funciones HSV en Represa";
constexpr std::string_view PideOpcion =
    "Opciones: \r\n"
    "1- Tabla h, A(h), S(h)\r\n"
    "2- Verificar todas las funciones S(h), h(S), A(h), h(A)\r\n"
    "0- Salir";
constexpr std::string_view TituloTodas =
    "Verificar todas las funciones S(h), h(S), A(h) y h(A) de la Represa ";
constexpr std::string_view ColumnasTodas =
    " h[m]   A[has]   S[m3]          A(has)     h[m]           S(m3)     h(m)    ";
constexpr std::string_view TituloTabla = "Tabla de Altura h, Superficie A(h) y Almacenamiento S(h)";
constexpr std::string_view ColumnasTabla = " h[m]      A[has]       S[m3]";
constexpr std::string_view TituloPaso = "Incremento de Altura de Embalse)";
constexpr std::string_view PidePaso = "Ingrese un valor incremental dH [m]";

constexpr std::string_view TituloHQ = "FUNCIONES H-Q EN REPRESAS";
constexpr std::string_view ColumnasHQ = "     i      H[m]       Q[m]";
constexpr std::string_view PasoChico = "El intervalo elegido para H es muy pequeño...";
constexpr std::string_view TituloPasoChico = "Elija un intervalo mayor";

// --- lines ---

void AgregaRenglon(Siro& s, std::string_view renglon)
{
    s.Control.TextoPizarra.append(model::SaltoLinea).append(renglon);
}

/// A number with a blank ahead unless it is negative, then blanks up to the width.
template <typename Numero>
std::string Columna(Numero x, std::size_t ancho)
{
    std::string texto = NumeroATexto(x);
    if (!texto.starts_with('-')) texto.insert(0, 1, ' ');
    return model::AjustaIzquierda(texto, ancho);
}

void MuestraPizarra(Siro& s)
{
    s.Control.SalidaPizarra = true;
    s.Anfitrion.PonMarcaPizarra(true);
    s.Anfitrion.AbrePizarra();
    s.Anfitrion.PonPizarra(s.Control.TextoPizarra);
}

/// Runs a command: a fault is told and ends it.
template <typename Cuerpo>
void Comando(const Siro& s, Cuerpo&& cuerpo)
{
    model::Sentencia(std::forward<Cuerpo>(cuerpo), model::AvisaArchivo(s));
}

/// Calls `renglon` with every height from the least by the step, in 32-bit floats, none passing the greatest.
/// Where a step doesn't lead upwards there is the first height alone.
template <typename Renglon>
void RecorreAlturas(const RangoAlturas& rango, float paso, Renglon&& renglon)
{
    for (float h = rango.minimo; h <= rango.maximo;) {
        renglon(h);
        const float siguiente = Simple(double{h} + paso);
        if (!(siguiente > h)) return;
        h = siguiente;
    }
}

// --- height, area, storage ---

/// Takes the Represa with a number in hand, by way of its name. Throws Falla 6, 9, 91 where there is none.
const Represa& TomaEnMano(Siro& s, double numero)
{
    const Represa& ranura = s.Red.Represas(model::Entero16(numero));
    for (int i = 1; i <= s.Red.ColRepresas.Cuenta(); ++i)
        if (s.Red.ColRepresas.Item(i).NombreRepresa == ranura.NombreRepresa) {
            s.CompActual = {model::ComponenteActual::Clase::Represa, i};
            break;
        }
    return s.Red.ColRepresas.Item(s.CompActual.item);
}

/// A column of the table of the Represa in hand from its first to its last row, and a fiftieth of it.
struct Rango {
    template <typename T>
    Rango(const model::Matriz<T>& columna, int numero, int filas)
        : minimo(Simple(double{1} * columna(numero, 1))),
          maximo(Simple(double{1} * columna(numero, filas))),
          paso(Simple(Redondea((double{1} * maximo - minimo) / PartesDelRango, DecimalesPaso)))
    {
    }
    float minimo, maximo, paso;
};

/// Heights from areas and from storages, at the pace of the heights. Once the argument has passed its range a
/// height is worked out no more, and the last one stands.
class Inversas {
  public:
    Inversas(Siro& estado, const Rango& areas, const Rango& volumenes)
        : s(estado), A(areas), S(volumenes), a(areas.minimo), volumen(volumenes.minimo)
    {
    }
    std::string Renglon()
    {
        if (a <= A.maximo) hDeA = Simple(HdeARepresa(s, a));
        if (volumen <= S.maximo) hDeS = HdeSRepresa(s, volumen);
        std::string renglon = Columna(Redondea(a, 3), 13) + Columna(Redondea(hDeA, 2), 15) +
                              Columna(Redondea(volumen, 0), 10) + Columna(Redondea(hDeS, 2), 15);
        a = Simple(double{a} + A.paso);
        volumen = Simple(double{volumen} + S.paso);
        return renglon;
    }

  private:
    Siro& s;
    Rango A, S;
    float a, volumen;
    float hDeA = 0;
    double hDeS = 0;
};

void ListaTodas(Siro& s, const Represa& r)
{
    const int filas = s.Red.RepresaFilasHAS(r.numRepresa);
    const Rango H(s.Red.RepresaH, r.numRepresa, filas);
    Inversas inversas(s, {s.Red.RepresaA, r.numRepresa, filas}, {s.Red.RepresaS, r.numRepresa, filas});
    AgregaRenglon(s, std::string(TituloTodas) + r.NombreRepresa);
    AgregaRenglon(s, ColumnasTodas);
    RecorreAlturas({H.minimo, H.maximo}, H.paso, [&](float h) {
        const std::string directas = Columna(Redondea(h, 3), 7) +
                                     Columna(Redondea(Simple(AdeHRepresa(s, h)), 3), 10) +
                                     Columna(Redondea(SdeHRepresa(s, h), 0), 13);
        AgregaRenglon(s, directas + inversas.Renglon());
    });
}

void ListaTabla(Siro& s, const Represa& r)
{
    AgregaRenglon(s, TituloTabla);
    AgregaRenglon(s, "Represa: " + r.NombreRepresa);
    AgregaRenglon(s, ColumnasTabla);
    const Rango H(s.Red.RepresaH, r.numRepresa, s.Red.RepresaFilasHAS(r.numRepresa));
    std::string defecto = NumeroATexto(H.paso);
    NormalizaDecimal(defecto);
    const float paso =
        Simple(Val(s.Anfitrion.PideTexto({std::string(PidePaso), std::string(TituloPaso), defecto})));
    RecorreAlturas({H.minimo, H.maximo}, paso, [&](float h) {
        AgregaRenglon(s, Columna(Redondea(h, 2), 10) + Columna(Redondea(Simple(AdeHRepresa(s, h)), 2), 15) +
                             Columna(Redondea(SdeHRepresa(s, h), 0), 10));
    });
}

// --- height, outflow ---

RangoAlturas RangoDe(const Siro& s, const Represa& r)
{
    if (!r.optTabla) return RangoFunciones(r);
    return {s.Red.RepresaQH(r.numRepresa, 1),
            s.Red.RepresaQH(r.numRepresa, s.Red.RepresaFilasHQ(r.numRepresa))};
}

/// Asks for the step of the heights [m], once more where it makes too many lines; the second answer is taken
/// as it is. Throws Falla 11 where the first is 0.
float PidePasoHQ(const Siro& s, const Represa& r, const RangoAlturas& rango)
{
    const float largo = Simple(double{rango.maximo} - rango.minimo);
    const model::Peticion peticion{
        "HMáximo = " + NumeroATexto(rango.maximo) + "    HMinimo = " + NumeroATexto(rango.minimo) +
            "     Rango = " + NumeroATexto(largo) + "  Ingrese un incrementao de altura dH, en la Presa " +
            r.NombreRepresa,
        "Represa" + r.NombreRepresa + ": Tabla Altura H -Caudal Salida Q ", std::string(PasoPorDefecto)};
    const float paso = Simple(Val(s.Anfitrion.PideTexto(peticion)));
    if (!(model::Cociente(largo, paso) > MaximoRenglones)) return paso;
    s.Anfitrion.Avisa({std::string(PasoChico), std::string(TituloPasoChico)});
    return Simple(Val(s.Anfitrion.PideTexto(peticion)));
}

/// The parabolas are listed with H[m]^2 though they are worked out from the height above H min: kept as it
/// stands.
std::string Expresion(const FuncionFQ& f)
{
    std::string texto = "Q[m3/s]= " + NumeroATexto(f.a);
    if (f.esPotencia)
        texto += " * (H[m]-HMin[m])^" + NumeroATexto(f.b);
    else
        texto += " + " + NumeroATexto(f.b) + " * (H[m]-HMin[m]) + " + NumeroATexto(f.c) + " * H[m]^2";
    return texto + "     ; para, " + NumeroATexto(f.minimo) + "[m] <=H[m]<= " + NumeroATexto(f.maximo);
}

void ListaHQ(Siro& s, const Represa& r)
{
    const RangoAlturas rango = RangoDe(s, r);
    const float paso = PidePasoHQ(s, r, rango);
    AgregaRenglon(s, "REPRESA: " + r.NombreRepresa);
    if (!r.optTabla)
        for (const FuncionFQ& f : FuncionesEnUso(r))
            AgregaRenglon(s, Expresion(f));
    AgregaRenglon(s, ColumnasHQ);
    std::int32_t i = 0;
    RecorreAlturas(rango, paso, [&](float h) {
        AgregaRenglon(s, Columna(i++, 6) + "      " + Columna(h, 12) + Columna(QdeHRepresa(s, h), 12));
    });
}

}  // namespace

void VerificaHSV(Siro& s)
{
    if (s.Red.NroRepresas == 0) return;
    Comando(s, [&] {
        model::LeeTablaHSVRepresa(s);
        const double numero =
            Val(s.Anfitrion.PideTexto({std::string(PideNumero), std::string(TituloNumero), {}}));
        const Represa& r = TomaEnMano(s, numero);
        const double opcion =
            Val(s.Anfitrion.PideTexto({std::string(PideOpcion), std::string(TituloOpcion), {}}));
        if (opcion == 0) return;
        if (opcion == 2) ListaTodas(s, r);
        if (opcion == 1) ListaTabla(s, r);
        MuestraPizarra(s);
    });
}

void VerificaHQ(Siro& s)
{
    if (s.Red.NroRepresas == 0) return;
    Comando(s, [&] {
        model::LeeTablaHQRepresa(s);
        AgregaRenglon(s, TituloHQ);
        for (int i = 1; i <= s.Red.ColRepresas.Cuenta(); ++i) {
            s.CompActual = {model::ComponenteActual::Clase::Represa, i};
            ListaHQ(s, s.Red.ColRepresas.Item(i));
        }
        MuestraPizarra(s);
    });
}

void NormalizaDecimal(std::string& texto)
{
    texto = model::ComasAPuntos(texto);
}

}  // namespace hydraulics
