// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/ArchivosTormenta.h"

#include <algorithm>
#include <concepts>
#include <cstddef>

#include "model/Avisos.h"
#include "model/EscrituraInformada.h"
#include "model/Falla.h"
#include "model/Numeros.h"
#include "model/Registros.h"
#include "model/Siro.h"

namespace model {

namespace {

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

// Both table files leave nothing to be seen of tables 1 to 3 where they can't be read to their end. Slot 0
// is no concern of a failure.
void AnulaFilas(TablasDeLluvia& t)
{
    std::fill(t.NroFilasTabla.begin() + 1, t.NroFilasTabla.end(), std::int16_t{0});
}

// A file is described once, by the walk over its records: `archivo` reads or writes them. `haceLugar` is
// called where a reader knows how much is to come.

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

void RecorrePpReal(auto& archivo, Tormenta& enMano, TormentaReal& tormenta, auto&& haceLugar)
{
    archivo.Registro([&](auto& r) { r.Campos(tormenta.Notas); });
    archivo.Registro([&](auto& r) { r.Campos(enMano.NroPpReal, tormenta.PasoPpReal); });
    archivo.Registro([&](auto& r) { r.Campos(tormenta.txtDateI, tormenta.txtTimeI); });
    archivo.Registro([&](auto& r) { r.Campos(tormenta.txtDateF, tormenta.txtTimeF); });
    haceLugar();
    for (int j = 1; j <= enMano.NroPpReal; ++j)
        archivo.Registro([&](auto& r) { r.Campos(enMano.PpReal(j)); });
}

// --- personal distributions ---

void RecorreDisPer(auto& archivo, TablasDeLluvia& t, auto&& haceLugar)
{
    archivo.Registro([&](auto& r) { r.Campos(t.NroFilasTabla[1], t.NroFilasTabla[2], t.NroFilasTabla[3]); });
    haceLugar();
    for (std::size_t k = 1; k <= 3; ++k) {
        archivo.Registro([&](auto& r) { r.Campos(t.NotasDisPer[k]); });
        archivo.Registro([&](auto& r) { r.Campos(t.DurMinPer[k], t.DurMaxPer[k]); });
        for (int j = 1; j <= t.NroFilasTabla[k]; ++j)
            archivo.Registro([&](auto& r) {
                float& porcentaje = t.DisPerso(static_cast<int>(k), j);
                // The decimals that the file holds end here: the variable that takes the field is a whole
                // one.
                if constexpr (std::same_as<decltype(r), LectorRegistros&>)
                    porcentaje = r.Numero16();
                else
                    r.Campos(porcentaje);
            });
    }
}

// --- tables of synthetic storms ---

void RecorrePDRs(auto& archivo, TablasDeLluvia& t, auto&& haceLugar)
{
    auto& n = t.NroFilasTabla;
    archivo.Registro([&](auto& r) { r.Campos(n[0], n[1], n[2], n[3]); });
    haceLugar();
    for (std::size_t k = 0; k < n.size(); ++k) {
        const int tabla = static_cast<int>(k);
        archivo.Registro([&](auto& r) { r.Campos(t.NotasPDR[k]); });
        for (int j = 1; j <= n[k]; ++j)
            archivo.Registro(
                [&](auto& r) { r.Campos(t.TablasP(tabla, j), t.TablasD(tabla, j), t.TablasR(tabla, j)); });
    }
}

/// Copies the rows of the table in use into the series of the run.
void CargaSerie(Siro& s)
{
    std::int16_t& tabla = s.Tormenta.TablaPDR;
    if (tabla < 1 || tabla > 3) tabla = 0;
    const auto n = s.TablasDeLluvia.NroFilasTabla[static_cast<std::size_t>(tabla)];
    s.Serie.SerieP.Dimensiona(n);
    s.Serie.SerieD.Dimensiona(n);
    s.Serie.SerieR.Dimensiona(n);
    s.Serie.NroSeriePDR = n;
    for (int j = 1; j <= n; ++j) {
        s.Serie.SerieP(j) = s.TablasDeLluvia.TablasP(tabla, j);
        s.Serie.SerieD(j) = s.TablasDeLluvia.TablasD(tabla, j);
        s.Serie.SerieR(j) = s.TablasDeLluvia.TablasR(tabla, j);
    }
}

// --- list of single storms ---

void RecorreTormenta(auto& archivo, Tormenta& t)
{
    archivo.Registro([&](auto& r) { r.Campos(t.PpTormenta, t.DurTormenta, t.RecTormenta); });
}

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
    Tormenta& enMano = s.Tormenta;
    const bool leida = Sentencia([&] {
        LectorRegistros lector(s.Disco.Lee(s.Proyecto.ArchivoTemp));
        RecorrePpReal(lector, enMano, tormenta, [&] {
            enMano.PpReal.Redimensiona(enMano.NroPpReal);
            for (int j = 0; j <= enMano.NroPpReal; ++j)
                enMano.PpReal(j) = 0;
        });
        enMano.DurTormenta = Producto16(enMano.NroPpReal, tormenta.PasoPpReal);
        enMano.PpTormenta = 0;
        for (int j = 1; j <= enMano.NroPpReal; ++j)
            enMano.PpTormenta = Simple(double{enMano.PpTormenta} + double{enMano.PpReal(j)});
    });
    if (!leida) enMano.NroPpReal = 0;
}

void GuardaPpReal(Siro& s, TormentaReal& tormenta)
{
    AbreTormenta(s, tormenta);
    const auto antes = s.Tormenta.PpReal;
    s.Tormenta.PpReal.Redimensiona(s.Tormenta.NroPpReal);
    EscritorRegistros escritor(s.Disco);
    escritor.Abre(s.Proyecto.ArchivoTemp);
    RecorrePpReal(escritor, s.Tormenta, tormenta, [] {});
    try {
        escritor.Cierra();
    } catch (const Falla&) {
        s.Tormenta.PpReal = antes;
        throw;
    }
}

// --- personal distributions ---

bool LeeTablaDisTemPer(Siro& s)
{
    s.Proyecto.ArchivoTemp = Ruta(s.Proyecto.DirTrabajo, ArchivoDisPer);
    TablasDeLluvia& t = s.TablasDeLluvia;
    const bool leida = Sentencia([&] {
        LectorRegistros lector(s.Disco.Lee(s.Proyecto.ArchivoTemp));
        RecorreDisPer(lector, t, [&] {
            const auto mayor = std::max({t.NroFilasTabla[1], t.NroFilasTabla[2], t.NroFilasTabla[3]});
            Ajusta(t.DisPerso, 3, Suma16(mayor, 1));
            for (std::size_t k = 1; k <= 3; ++k)
                for (int j = 1; j <= t.NroFilasTabla[k]; ++j)
                    t.DisPerso(static_cast<int>(k), j) = 0;
        });
    });
    if (!leida) AnulaFilas(t);
    return leida;
}

bool GuardaTablaDisPer(Siro& s)
{
    s.Proyecto.ArchivoTemp = Ruta(s.Proyecto.DirTrabajo, ArchivoDisPer);
    EscrituraInformada escritor(s, s.Proyecto.ArchivoTemp, NumeroFalla::ArchivoNoEsta);
    RecorreDisPer(escritor, s.TablasDeLluvia, [] {});
    return escritor.Cierra();
}

// --- tables of synthetic storms ---

bool LeeTablaPDRs(Siro& s)
{
    s.Proyecto.ArchivoTemp = Ruta(s.Proyecto.DirTrabajo, ArchivoPDRs);
    TablasDeLluvia& t = s.TablasDeLluvia;
    const bool leida = Sentencia([&] {
        LectorRegistros lector(s.Disco.Lee(s.Proyecto.ArchivoTemp));
        RecorrePDRs(lector, t, [&] {
            const auto tope = Suma16(*std::max_element(t.NroFilasTabla.begin(), t.NroFilasTabla.end()), 1);
            Ajusta(t.TablasP, 4, tope);
            Ajusta(t.TablasD, 4, tope);
            Ajusta(t.TablasR, 4, tope);
        });
        CargaSerie(s);
    });
    if (!leida) AnulaFilas(t);
    return leida;
}

bool GuardaTablaPDRs(Siro& s)
{
    s.Proyecto.ArchivoTemp = Ruta(s.Proyecto.DirTrabajo, ArchivoPDRs);
    EscrituraInformada escritor(s, s.Proyecto.ArchivoTemp, NumeroFalla::ArchivoNoEsta);
    RecorrePDRs(escritor, s.TablasDeLluvia, [] {});
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
    // A project without a list has an empty one.
    Sentencia([&] {
        LectorRegistros lector(s.Disco.Lee(s.Proyecto.ArchivoTemp));
        while (!lector.Fin() && cmbPDR.size() < MaximoDeLista) {
            RecorreTormenta(lector, s.Tormenta);
            cmbPDR.push_back(TextoPDR(s.Tormenta.PpTormenta, s.Tormenta.DurTormenta, s.Tormenta.RecTormenta));
        }
    });
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
        RecorreTormenta(escritor, s.Tormenta);
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
