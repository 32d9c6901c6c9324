// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/ArchivosTormenta.h"

#include <algorithm>
#include <utility>

#include "model/Avisos.h"
#include "model/EscrituraInformada.h"
#include "model/Falla.h"
#include "model/Numeros.h"
#include "model/Registros.h"
#include "model/Siro.h"

namespace model {

namespace {

constexpr std::string_view ArchivoDisPer = "distriPp_dpt.vlm";
constexpr std::string_view ArchivoPDRs = "TablasPDRs_pdr.vlm";
constexpr std::string_view ArchivoListaPDR = "ListaPDR.vlm";
constexpr std::string_view RaizTormenta = "Velmir";

constexpr std::string_view NombreInadecuado1 = "El archivo ";
constexpr std::string_view NombreInadecuado2 =
    " no es un archivo de configuración válido. Los archivos de configuración tienen el formato nn_pt.vlm, "
    "donde nn es el nombre del archivo";
constexpr std::string_view EtiquetaSinTormenta = "debe cargar o recomponer un archivo tipo <nn_pt.vlm>";

constexpr std::size_t MaximoDeLista = 32767;  ///< single storms that a list takes

constexpr std::string_view PrefijoPp = "Pp= ";
constexpr std::string_view PrefijoDur = " - Dur = ";
constexpr std::string_view PrefijoRec = " - Rec = ";

/// Changes the columns of a table of rain and keeps what it holds; the first time it is allocated.
template <typename T>
void Ajusta(Matriz<T>& tabla, int ultimaFila, int columnas)
{
    if (tabla.TopeColumna() < 0) {
        tabla.Dimensiona(ultimaFila, columnas);
    } else {
        tabla.Redimensiona(columnas);
    }
}

std::int16_t& Filas(Siro& s, int k)
{
    return s.TablasDeLluvia.NroFilasTabla[static_cast<std::size_t>(k)];
}

// Both table files leave nothing to be seen of tables 1 to 3 where they can't be read to their end. Slot 0
// is no concern of a failure.
void AnulaFilas(Siro& s)
{
    std::fill(s.TablasDeLluvia.NroFilasTabla.begin() + 1, s.TablasDeLluvia.NroFilasTabla.end(),
              std::int16_t{0});
}

// --- real storms ---

bool EsTormenta(std::string_view nombre)
{
    return nombre.ends_with(TerminacionTormenta);
}

/// Number that a storm's name bears behind its root, up to the first "_". Without "_" no name is a storm's.
std::int16_t NumeroTormenta(std::string_view nombre)
{
    const std::string_view resto = nombre.substr(RaizTormenta.size());
    return Entero16(Val(resto.substr(0, resto.find('_'))));
}

void AbreTormenta(Siro& s, TormentaReal& tormenta)
{
    tormenta.nombre = NombreTormenta(tormenta.nombre);
    s.Proyecto.ArchivoTemp = Ruta(s.Proyecto.DirProyecto, tormenta.nombre);
}

void LeeCabeceraPpReal(Siro& s, TormentaReal& tormenta, LectorRegistros& lector)
{
    tormenta.Notas = lector.Texto();
    lector.Registro(2, [&] {
        const auto n = lector.Numero16();
        tormenta.PasoPpReal = lector.Numero16();
        s.Tormenta.NroPpReal = n;
    });
    lector.Registro(2, [&] {
        std::string fecha = lector.Texto();
        tormenta.txtTimeI = lector.Texto();
        tormenta.txtDateI = std::move(fecha);
    });
    lector.Registro(2, [&] {
        std::string fecha = lector.Texto();
        tormenta.txtTimeF = lector.Texto();
        tormenta.txtDateF = std::move(fecha);
    });
}

void LeeIntervalos(Siro& s, LectorRegistros& lector)
{
    s.Tormenta.PpReal.Redimensiona(s.Tormenta.NroPpReal);
    for (int j = 0; j <= s.Tormenta.NroPpReal; ++j)
        s.Tormenta.PpReal(j) = 0;
    for (int j = 1; j <= s.Tormenta.NroPpReal; ++j)
        s.Tormenta.PpReal(j) = lector.NumeroSimple();
}

// --- personal distributions ---

void LeeUnaDisPer(Siro& s, LectorRegistros& lector, int k)
{
    const auto ranura = static_cast<std::size_t>(k);
    s.TablasDeLluvia.NotasDisPer[ranura] = lector.Texto();
    lector.Registro(2, [&] {
        const auto minima = lector.Numero16();
        s.TablasDeLluvia.DurMaxPer[ranura] = lector.Numero16();
        s.TablasDeLluvia.DurMinPer[ranura] = minima;
    });
    // The decimals that the file holds end here: the variable that takes the field is a whole number.
    for (int j = 1; j <= Filas(s, k); ++j)
        s.TablasDeLluvia.DisPerso(k, j) = lector.Numero16();
}

void EscribeUnaDisPer(Siro& s, EscrituraInformada& escritor, int k)
{
    const auto ranura = static_cast<std::size_t>(k);
    escritor.Registro([&](EscritorRegistros& e) { e.Texto(s.TablasDeLluvia.NotasDisPer[ranura]); });
    escritor.Registro([&](EscritorRegistros& e) {
        e.Numero(s.TablasDeLluvia.DurMinPer[ranura]).Numero(s.TablasDeLluvia.DurMaxPer[ranura]);
    });
    for (int j = 1; j <= Filas(s, k); ++j)
        escritor.Registro([&](EscritorRegistros& e) { e.Numero(s.TablasDeLluvia.DisPerso(k, j)); });
}

// --- tables of synthetic storms ---

void LeeUnaTablaPDR(Siro& s, LectorRegistros& lector, int k)
{
    s.TablasDeLluvia.NotasPDR[static_cast<std::size_t>(k)] = lector.Texto();
    for (int j = 1; j <= Filas(s, k); ++j)
        lector.Registro(3, [&] {
            const auto p = lector.Numero16();
            const auto d = lector.Numero16();
            s.TablasDeLluvia.TablasR(k, j) = lector.Numero16();
            s.TablasDeLluvia.TablasP(k, j) = p;
            s.TablasDeLluvia.TablasD(k, j) = d;
        });
}

void EscribeUnaTablaPDR(Siro& s, EscrituraInformada& escritor, int k)
{
    escritor.Registro(
        [&](EscritorRegistros& e) { e.Texto(s.TablasDeLluvia.NotasPDR[static_cast<std::size_t>(k)]); });
    for (int j = 1; j <= Filas(s, k); ++j)
        escritor.Registro([&](EscritorRegistros& e) {
            e.Numero(s.TablasDeLluvia.TablasP(k, j))
                .Numero(s.TablasDeLluvia.TablasD(k, j))
                .Numero(s.TablasDeLluvia.TablasR(k, j));
        });
}

/// Copies the rows of the table in use into the series of the run.
void CargaSerie(Siro& s)
{
    if (s.Tormenta.TablaPDR < 1 || s.Tormenta.TablaPDR > 3) s.Tormenta.TablaPDR = 0;
    const auto n = Filas(s, s.Tormenta.TablaPDR);
    s.Serie.SerieP.Dimensiona(n);
    s.Serie.SerieD.Dimensiona(n);
    s.Serie.SerieR.Dimensiona(n);
    s.Serie.NroSeriePDR = n;
    for (int j = 1; j <= n; ++j) {
        s.Serie.SerieP(j) = s.TablasDeLluvia.TablasP(s.Tormenta.TablaPDR, j);
        s.Serie.SerieD(j) = s.TablasDeLluvia.TablasD(s.Tormenta.TablaPDR, j);
        s.Serie.SerieR(j) = s.TablasDeLluvia.TablasR(s.Tormenta.TablaPDR, j);
    }
}

// --- list of single storms ---

/// Drops up to n leading characters of a UTF-8 text.
std::string_view SinPrimeros(std::string_view texto, std::size_t n)
{
    std::size_t lugar = 0;
    while (n > 0 && lugar < texto.size()) {
        ++lugar;
        while (lugar < texto.size() && (static_cast<unsigned char>(texto[lugar]) & 0xC0U) == 0x80U)
            ++lugar;
        --n;
    }
    return texto.substr(lugar);
}

/// Drops the last character of a UTF-8 text; of an empty one there is nothing to drop.
std::string_view SinUltimo(std::string_view texto)
{
    while (!texto.empty() && (static_cast<unsigned char>(texto.back()) & 0xC0U) == 0x80U)
        texto.remove_suffix(1);
    if (!texto.empty()) texto.remove_suffix(1);
    return texto;
}

/// Takes what stands before the first "-" but for its last character, a blank; drops as well what leads to
/// the next number. Returns false, and takes nothing, where there is no "-".
bool Corta(std::string_view& resto, std::string_view& numero)
{
    constexpr std::size_t LargoRotulo = PrefijoDur.size() - 2;  // behind the "-" and the blank before it
    static_assert(PrefijoDur.size() == PrefijoRec.size());
    const std::size_t guion = resto.find('-');
    if (guion == std::string_view::npos) return false;
    numero = SinUltimo(resto.substr(0, guion));
    resto = SinPrimeros(resto.substr(guion + 1), LargoRotulo);
    return true;
}

}  // namespace

// --- real storms ---

std::string NombreTormenta(std::string_view nombre)
{
    return std::string(EsTormenta(nombre) ? nombre : TormentaPorDefecto);
}

bool TormentaProtegida(std::string_view nombre)
{
    return std::find(TormentasProtegidas.begin(), TormentasProtegidas.end(), nombre) !=
           TormentasProtegidas.end();
}

std::vector<std::string> ListaTormentas(const Siro& s)
{
    std::vector<std::string> nombres = s.Disco.Lista(s.Proyecto.DirProyecto);
    std::erase_if(nombres, [](const std::string& nombre) { return !EsTormenta(nombre); });
    return nombres;
}

std::string CompruebaTormenta(const Siro& s, std::string_view nombre)
{
    if (EsTormenta(nombre)) return std::string(nombre);
    Informa(s, std::string(NombreInadecuado1).append(nombre).append(NombreInadecuado2));
    return std::string(EtiquetaSinTormenta);
}

std::string EtiquetaTormenta(const Siro& s, std::string_view nombre)
{
    return CompruebaTormenta(s, NombreTormenta(nombre));
}

std::string NombreTormentaNueva(const Siro& s)
{
    std::int16_t mayor = 0;
    for (const std::string& nombre : ListaTormentas(s))
        if (nombre.starts_with(RaizTormenta)) mayor = std::max(mayor, NumeroTormenta(nombre));
    return std::string(RaizTormenta) + NumeroATexto(std::int32_t{Suma16(mayor, 1)});
}

std::string ArchivoTormentaNueva(std::string_view respuesta)
{
    return std::string(respuesta).append(TerminacionTormenta);
}

void LeePpReal(Siro& s, TormentaReal& tormenta)
{
    AbreTormenta(s, tormenta);
    try {
        LectorRegistros lector(s.Disco.Lee(s.Proyecto.ArchivoTemp));
        LeeCabeceraPpReal(s, tormenta, lector);
        LeeIntervalos(s, lector);
        s.Tormenta.DurTormenta = Producto16(s.Tormenta.NroPpReal, tormenta.PasoPpReal);
        s.Tormenta.PpTormenta = 0;
        for (int j = 1; j <= s.Tormenta.NroPpReal; ++j)
            s.Tormenta.PpTormenta = Simple(double{s.Tormenta.PpTormenta} + double{s.Tormenta.PpReal(j)});
    } catch (const Falla&) {
        s.Tormenta.NroPpReal = 0;
    }
}

void GuardaPpReal(Siro& s, TormentaReal& tormenta)
{
    AbreTormenta(s, tormenta);
    const auto antes = s.Tormenta.PpReal;
    s.Tormenta.PpReal.Redimensiona(s.Tormenta.NroPpReal);
    EscritorRegistros escritor(s.Disco);
    escritor.Abre(s.Proyecto.ArchivoTemp);
    escritor.Texto(tormenta.Notas).FinRegistro();
    escritor.Numero(std::int32_t{s.Tormenta.NroPpReal})
        .Numero(std::int32_t{tormenta.PasoPpReal})
        .FinRegistro();
    escritor.Texto(tormenta.txtDateI).Texto(tormenta.txtTimeI).FinRegistro();
    escritor.Texto(tormenta.txtDateF).Texto(tormenta.txtTimeF).FinRegistro();
    for (int j = 1; j <= s.Tormenta.NroPpReal; ++j)
        escritor.Numero(s.Tormenta.PpReal(j)).FinRegistro();
    try {
        escritor.Cierra();
    } catch (const Falla&) {
        s.Tormenta.PpReal = antes;
        throw;
    }
}

// --- personal distributions ---

void LeeTablaDisTemPer(Siro& s)
{
    s.Proyecto.ArchivoTemp = Ruta(s.Proyecto.DirTrabajo, ArchivoDisPer);
    try {
        LectorRegistros lector(s.Disco.Lee(s.Proyecto.ArchivoTemp));
        lector.Registro(3, [&] {
            const auto n1 = lector.Numero16();
            const auto n2 = lector.Numero16();
            Filas(s, 3) = lector.Numero16();
            Filas(s, 1) = n1;
            Filas(s, 2) = n2;
        });
        Ajusta(s.TablasDeLluvia.DisPerso, 3, Suma16(std::max({Filas(s, 1), Filas(s, 2), Filas(s, 3)}), 1));
        for (int k = 1; k <= 3; ++k)
            for (int j = 1; j <= Filas(s, k); ++j)
                s.TablasDeLluvia.DisPerso(k, j) = 0;
        for (int k = 1; k <= 3; ++k)
            LeeUnaDisPer(s, lector, k);
    } catch (const Falla&) {
        AnulaFilas(s);
    }
}

bool GuardaTablaDisPer(Siro& s)
{
    s.Proyecto.ArchivoTemp = Ruta(s.Proyecto.DirTrabajo, ArchivoDisPer);
    EscrituraInformada escritor(s, s.Proyecto.ArchivoTemp, NumeroFalla::ArchivoNoEsta);
    escritor.Registro(
        [&](EscritorRegistros& e) { e.Numero(Filas(s, 1)).Numero(Filas(s, 2)).Numero(Filas(s, 3)); });
    for (int k = 1; k <= 3; ++k)
        EscribeUnaDisPer(s, escritor, k);
    return escritor.Cierra();
}

// --- tables of synthetic storms ---

void LeeTablaPDRs(Siro& s)
{
    s.Proyecto.ArchivoTemp = Ruta(s.Proyecto.DirTrabajo, ArchivoPDRs);
    try {
        LectorRegistros lector(s.Disco.Lee(s.Proyecto.ArchivoTemp));
        lector.Registro(4, [&] {
            std::array<std::int16_t, 4> filas{};
            for (auto& n : filas)
                n = lector.Numero16();
            s.TablasDeLluvia.NroFilasTabla = filas;
        });
        const auto tope = Suma16(
            *std::max_element(s.TablasDeLluvia.NroFilasTabla.begin(), s.TablasDeLluvia.NroFilasTabla.end()),
            1);
        Ajusta(s.TablasDeLluvia.TablasP, 4, tope);
        Ajusta(s.TablasDeLluvia.TablasD, 4, tope);
        Ajusta(s.TablasDeLluvia.TablasR, 4, tope);
        for (int k = 0; k <= 3; ++k)
            LeeUnaTablaPDR(s, lector, k);
        CargaSerie(s);
    } catch (const Falla&) {
        AnulaFilas(s);
    }
}

bool GuardaTablaPDRs(Siro& s)
{
    s.Proyecto.ArchivoTemp = Ruta(s.Proyecto.DirTrabajo, ArchivoPDRs);
    EscrituraInformada escritor(s, s.Proyecto.ArchivoTemp, NumeroFalla::ArchivoNoEsta);
    escritor.Registro([&](EscritorRegistros& e) {
        for (const auto n : s.TablasDeLluvia.NroFilasTabla)
            e.Numero(n);
    });
    for (int k = 0; k <= 3; ++k)
        EscribeUnaTablaPDR(s, escritor, k);
    return escritor.Cierra();
}

// --- list of single storms ---

std::string TextoPDR(std::string_view p, std::string_view d, std::string_view r)
{
    return std::string(PrefijoPp).append(p).append(PrefijoDur).append(d).append(PrefijoRec).append(r);
}

std::string TextoPDR(float p, std::int16_t d, std::int16_t r)
{
    return TextoPDR(NumeroATexto(p), NumeroATexto(std::int32_t{d}), NumeroATexto(std::int32_t{r}));
}

void ParsePDR(Siro& s, std::string_view item)
{
    std::string_view resto = SinPrimeros(item, PrefijoPp.size());
    std::string_view numero;
    if (Corta(resto, numero)) s.Tormenta.PpTormenta = Simple(Val(numero));
    if (Corta(resto, numero)) s.Tormenta.DurTormenta = Entero16(Val(numero));
    s.Tormenta.RecTormenta = Entero16(Val(resto));
}

void leeListaPpDurRec(Siro& s, std::vector<std::string>& cmbPDR)
{
    s.Proyecto.ArchivoTemp = Ruta(s.Proyecto.DirProyecto, ArchivoListaPDR);
    cmbPDR.clear();
    try {
        LectorRegistros lector(s.Disco.Lee(s.Proyecto.ArchivoTemp));
        while (!lector.Fin() && cmbPDR.size() < MaximoDeLista) {
            lector.Registro(3, [&] {
                const auto p = lector.NumeroSimple();
                const auto d = lector.Numero16();
                s.Tormenta.RecTormenta = lector.Numero16();
                s.Tormenta.PpTormenta = p;
                s.Tormenta.DurTormenta = d;
            });
            cmbPDR.push_back(TextoPDR(s.Tormenta.PpTormenta, s.Tormenta.DurTormenta, s.Tormenta.RecTormenta));
        }
    } catch (const Falla&) {
        return;  // a project without a list has an empty one
    }
}

bool GuardaListaPDR(Siro& s, const std::vector<std::string>& cmbPDR, const CamposTormenta& campos)
{
    const auto p = s.Tormenta.PpTormenta;
    const auto d = s.Tormenta.DurTormenta;
    const auto r = s.Tormenta.RecTormenta;
    s.Proyecto.ArchivoTemp = Ruta(s.Proyecto.DirProyecto, ArchivoListaPDR);
    EscrituraInformada escritor(s, s.Proyecto.ArchivoTemp, NumeroFalla::ArchivoNoEsta);
    for (const std::string& item : cmbPDR) {
        if (item.empty()) continue;
        escritor.Paso([&] { ParsePDR(s, item); });
        escritor.Registro([&](EscritorRegistros& e) {
            e.Numero(s.Tormenta.PpTormenta)
                .Numero(std::int32_t{s.Tormenta.DurTormenta})
                .Numero(std::int32_t{s.Tormenta.RecTormenta});
        });
    }
    const bool guardada = escritor.Cierra();
    if (!escritor.Sigue()) {
        s.Tormenta.PpTormenta = p;
        s.Tormenta.DurTormenta = d;
        s.Tormenta.RecTormenta = r;
        return false;
    }
    escritor.Paso([&] { s.Tormenta.PpTormenta = Simple(Val(campos.txtPp)); });
    escritor.Paso([&] { s.Tormenta.DurTormenta = Entero16(Val(campos.txtDur)); });
    escritor.Paso([&] { s.Tormenta.RecTormenta = Entero16(Val(campos.cmbRec)); });
    return guardada;
}

}  // namespace model
