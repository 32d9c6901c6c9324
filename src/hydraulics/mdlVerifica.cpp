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
#include "model/Siro.h"
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

/// A column of a Represa's table from its first to its last row, and a fiftieth of it.
struct Rango {
    template <typename T>
    Rango(const CompActual& r, const model::Matriz<T>& columna)
        : minimo(Simple(double{1} * columna(r.numero, 1))),
          maximo(Simple(double{1} * columna(r.numero, r.filas(r.numero)))),
          paso(Simple(Redondea((double{1} * maximo - minimo) / PartesDelRango, DecimalesPaso)))
    {
    }
    float minimo, maximo, paso;
};

/// Heights from areas and from storages, at the pace of the heights. Once the argument has passed its range a
/// height is worked out no more, and the last one stands.
class Inversas {
  public:
    explicit Inversas(const CompActual& represa) : r(represa) {}
    std::string Renglon()
    {
        if (a <= A.maximo) hDeA = Simple(HdeARepresa(r, a));
        if (volumen <= S.maximo) hDeS = HdeS(r, volumen);
        std::string renglon = Columna(Redondea(a, 3), 13) + Columna(Redondea(hDeA, 2), 15) +
                              Columna(Redondea(volumen, 0), 10) + Columna(Redondea(hDeS, 2), 15);
        a = Simple(double{a} + A.paso);
        volumen = Simple(double{volumen} + S.paso);
        return renglon;
    }

  private:
    const CompActual& r;
    Rango A{r, r.tablaA}, S{r, r.tablaS};
    float a = A.minimo, volumen = S.minimo;
    float hDeA = 0;
    double hDeS = 0;
};

void ListaTodas(Siro& s, const CompActual& r)
{
    const Rango H(r, r.tablaH);
    Inversas inversas(r);
    AgregaRenglon(s, std::string(TituloTodas) + r.nombre);
    AgregaRenglon(s, ColumnasTodas);
    RecorreAlturas({H.minimo, H.maximo}, H.paso, [&](float h) {
        const std::string directas = Columna(Redondea(h, 3), 7) +
                                     Columna(Redondea(Simple(AdeH(r, h)), 3), 10) +
                                     Columna(Redondea(SdeH(r, h), 0), 13);
        AgregaRenglon(s, directas + inversas.Renglon());
    });
}

void ListaTabla(Siro& s, const CompActual& r)
{
    AgregaRenglon(s, TituloTabla);
    AgregaRenglon(s, "Represa: " + r.nombre);
    AgregaRenglon(s, ColumnasTabla);
    const Rango H(r, r.tablaH);
    std::string defecto = NumeroATexto(H.paso);
    NormalizaDecimal(defecto);
    const float paso =
        Simple(Val(s.Anfitrion.PideTexto({std::string(PidePaso), std::string(TituloPaso), defecto})));
    RecorreAlturas({H.minimo, H.maximo}, paso, [&](float h) {
        AgregaRenglon(s, Columna(Redondea(h, 2), 10) + Columna(Redondea(Simple(AdeH(r, h)), 2), 15) +
                             Columna(Redondea(SdeH(r, h), 0), 10));
    });
}

// --- height, outflow ---

/// Asks for the step of the heights [m], once more where it makes too many lines; the second answer is taken
/// as it is. Throws Falla 11 where the first is 0.
float PidePasoHQ(const Siro& s, const std::string& nombre, const RangoAlturas& rango)
{
    const float largo = Simple(double{rango.maximo} - rango.minimo);
    const model::Peticion peticion{
        "HMáximo = " + NumeroATexto(rango.maximo) + "    HMinimo = " + NumeroATexto(rango.minimo) +
            "     Rango = " + NumeroATexto(largo) + "  Ingrese un incrementao de altura dH, en la Presa " +
            nombre,
        "Represa" + nombre + ": Tabla Altura H -Caudal Salida Q ", std::string(PasoPorDefecto)};
    const float paso = Simple(Val(s.Anfitrion.PideTexto(peticion)));
    if (!(model::Cociente(largo, paso) > MaximoRenglones)) return paso;
    s.Anfitrion.Avisa({std::string(PasoChico), std::string(TituloPasoChico)});
    return Simple(Val(s.Anfitrion.PideTexto(peticion)));
}

void ListaHQ(Siro& s, const CompActual& r)
{
    const RangoAlturas rango = RangoDescarga(r);
    const float paso = PidePasoHQ(s, r.nombre, rango);
    AgregaRenglon(s, "REPRESA: " + r.nombre);
    if (r.funciones != nullptr)
        for (const FuncionFQ& f : FuncionesEnUso(*r.funciones))
            AgregaRenglon(s, f.Expresion());
    AgregaRenglon(s, ColumnasHQ);
    std::int32_t i = 0;
    RecorreAlturas(rango, paso, [&](float h) {
        AgregaRenglon(s, Columna(i++, 6) + "      " + Columna(h, 12) + Columna(QdeH(r, h), 12));
    });
}

}  // namespace

void VerificaHSV(Siro& s)
{
    if (s.Red.NroRepresas() == 0) return;
    Comando(s, [&] {
        model::LeeTablaHSVRepresa(s);
        const double numero =
            Val(s.Anfitrion.PideTexto({std::string(PideNumero), std::string(TituloNumero), {}}));
        const CompActual r = EnMano(s.Anfitrion, s.Red, s.Red.Represas(model::Entero16(numero)));
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
    if (s.Red.NroRepresas() == 0) return;
    Comando(s, [&] {
        model::LeeTablaHQRepresa(s);
        AgregaRenglon(s, TituloHQ);
        for (const Represa& r : s.Red.ColRepresas)
            ListaHQ(s, EnMano(s.Anfitrion, s.Red, r));
        MuestraPizarra(s);
    });
}

void NormalizaDecimal(std::string& texto)
{
    texto = model::ComasAPuntos(texto);
}

}  // namespace hydraulics
