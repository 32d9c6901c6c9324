// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/CorridaGuardada.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <string>

#include "runs/ProyectoCorrido.h"

namespace runs {
namespace {

using pruebas::EsperaLoMismo;
using pruebas::ProyectoCorrido;
using pruebas::RedAlAzar;

/// A depth, a duration, a distribution, both steps.
void PonTormenta(model::Siro& s, float lamina, std::int16_t duracion, std::int16_t distribucion)
{
    s.Tormenta.FormaPp = model::FormaLluvia::Escrita;
    s.Tormenta.PpTormenta = lamina;
    s.Tormenta.DurTormenta = duracion;
    s.Tormenta.DistriPp = distribucion;
    s.Pasos.PasoPp = s.Pasos.PasoQ = 10;
}

const study::Pieza* Halla(const std::vector<study::Pieza>& piezas, std::string_view nombre)
{
    const auto p = std::ranges::find_if(piezas, [&](const auto& x) { return x.nombre == nombre; });
    return p == piezas.end() ? nullptr : &*p;
}

TEST(CorridaGuardada, LaFilaDiceQueFueYConQueResultado)
{
    ProyectoCorrido p;
    p.PonMuestra();
    PonTormenta(p.s, 60.5F, 60, 1);
    p.s.Tormenta.RecTormenta = 25;
    const auto u = p.CorreUna();
    ASSERT_NE(u, nullptr);
    Libro libro = p.Libro();
    libro.ahora = [] { return std::int64_t{1'795'442'709'123}; };  // 2026-11-23 14:05:09.123 UTC
    const std::string archivo = Guarda(libro, PorGuardar(*u, p.Circunstancias()));
    EXPECT_EQ(archivo.substr(0, 29), "20261123-140509-123_" + u->huella.substr(0, 8) + "_");
    const auto lista = ListaDe(libro);
    ASSERT_EQ(lista.size(), 1U);
    EXPECT_EQ(lista[0].archivo, archivo);
    EXPECT_EQ(lista[0].reparo, "");
    EXPECT_EQ(lista[0].bytes, p.disco.Bytes("/proy/Quelmar_corridas/" + archivo).size());
    const study::Ficha& f = lista[0].ficha;
    EXPECT_EQ(f.proyecto, "Quelmar");
    EXPECT_EQ(f.clase, "una");
    EXPECT_EQ(f.cuando.size(), std::string("2026-11-23 14:05:09").size());
    EXPECT_EQ(f.quien, p.s.Configuracion.Operador);
    EXPECT_EQ(f.tormenta, "Tormenta: P 60.5 mm, D 60 min, R 25 años, López Cadenas, pasos 10/10 min");
    EXPECT_EQ(f.huella, u->huella);
    EXPECT_EQ(f.huellaEntradas.size(), 64U);
    EXPECT_EQ(f.huellaResultados.size(), 64U);
    EXPECT_EQ(f.segundos, 0.25);
    EXPECT_EQ(static_cast<std::size_t>(f.errores + f.avisos + f.notas), u->avisos.size());
    // The only outfall, its greatest outflow and the first step that has it.
    const model::Resultados& r = u->r();
    ASSERT_EQ(r.NroSalidas, 1);
    ASSERT_EQ(f.salidas.size(), 1U);
    int fila = 1, paso = 0;
    while (r.Secuencia[static_cast<std::size_t>(fila)] != r.Salidas[1])
        ++fila;
    for (int k = 1; k <= r.NroPasosQ; ++k)
        if (r.QSale(fila, k) > r.QSale(fila, paso)) paso = k;
    EXPECT_GT(f.salidas[0].caudal, 0);
    EXPECT_EQ(f.salidas[0],
              (study::PicoDeSalida{r.Salidas[1], double{r.QSale(fila, paso)}, 10.0 * paso, ""}));
}

TEST(CorridaGuardada, GuardaLosArchivosQueLaCorridaLeyoLetraPorLetra)
{
    ProyectoCorrido p;
    p.PonMuestra();
    PonTormenta(p.s, 60, 60, 5);  // by a personal distribution, which is read from the shared tables
    const auto u = p.CorreUna();
    ASSERT_NE(u, nullptr);
    p.disco.Pon("/proy/Quelmar_UEHs.vlm", "saved anew by somebody else meanwhile");
    const auto piezas = PiezasDe(p.Libro(), p.Guarda(*u));
    EXPECT_EQ(piezas.front().nombre, "corrida.json");
    EXPECT_FALSE(piezas.front().comprimida);
    const std::filesystem::path datos(SIRO_DATA_DIR);
    for (const char* const nombre : {"Quelmar_Conf.vlm", "Quelmar_UEHs.vlm", "Quelmar_VerCau.vlm",
                                     "Quelmar_RHAS.vlm", "Quelmar_RHQ.vlm"}) {
        const study::Pieza* const pieza = Halla(piezas, std::string("proyecto/") + nombre);
        ASSERT_NE(pieza, nullptr) << nombre;
        if (std::string_view(nombre) != "Quelmar_Conf.vlm") {  // which takes its directory when it is opened
            EXPECT_TRUE(apoyo::MismoQueArchivo(datos / "Proyectos" / nombre, pieza->bytes));
        }
    }
    const study::Pieza* const tabla = Halla(piezas, "trabajo/distriPp_dpt.vlm");
    ASSERT_NE(tabla, nullptr);
    EXPECT_TRUE(apoyo::MismoQueArchivo(datos / "distriPp_dpt.vlm", tabla->bytes));
    EXPECT_EQ(Halla(piezas, "proyecto/Quelmar.jpg"), nullptr);
    EXPECT_EQ(Halla(piezas, "proyecto/ListaPDR.vlm"), nullptr);
}

TEST(CorridaGuardada, UnaTormentaVueltaACorrerDaLosMismosBits)
{
    ProyectoCorrido p;
    p.PonMuestra();
    for (const int distribucion : {0, 1, 4, 5, 6}) {
        PonTormenta(p.s, 83.3F, 90, static_cast<std::int16_t>(distribucion));
        const auto u = p.CorreUna();
        ASSERT_NE(u, nullptr);
        const std::string archivo = p.Guarda(*u);
        const Rehecha otra = Rehace(p.Libro(), archivo);
        ASSERT_NE(otra.corrida, nullptr) << otra.reparo;
        EXPECT_EQ(otra.aviso, "") << "distribution " << distribucion;
        EsperaLoMismo(*u, *otra.corrida);
        EXPECT_EQ(otra.corrida->titulo, u->titulo);
        EXPECT_EQ(otra.corrida->sello, u->sello);
        ASSERT_NE(otra.estado, nullptr);
        EXPECT_TRUE(otra.estado->Resultados.QSale == u->r().QSale);
    }
}

TEST(CorridaGuardada, UnaTormentaRegistradaYUnaPorUEHVuelvenIgual)
{
    ProyectoCorrido p;
    p.PonMuestra();
    p.s.Tormenta.FormaPp = model::FormaLluvia::Real;
    p.s.Tormenta.DistriPp = 7;
    p.s.Pasos = {.PasoPp = 10, .PasoQ = 5};
    p.s.Tormenta.NroPpReal = 3;
    p.s.Tormenta.PpReal.Dimensiona(3);
    p.s.Tormenta.PpReal(1) = 0.1F;
    p.s.Tormenta.PpReal(2) = 22.25F;
    p.s.Tormenta.PpReal(3) = 11.7F;
    p.s.Tormenta.PpTormenta = 0.1F + 22.25F + 11.7F;
    p.s.Tormenta.DurTormenta = 30;
    auto u = p.CorreUna();
    ASSERT_NE(u, nullptr);
    Rehecha otra = Rehace(p.Libro(), p.Guarda(*u));
    ASSERT_NE(otra.corrida, nullptr) << otra.reparo;
    EXPECT_EQ(otra.aviso, "");
    EsperaLoMismo(*u, *otra.corrida);

    PonTormenta(p.s, 50, 60, 0);
    p.s.Tormenta.FormaPp = model::FormaLluvia::PorUEH;
    for (int i = 1; i <= model::MaxUEHs; ++i)
        p.s.Tormenta.PpUEH(i) = 30.1F + static_cast<float>(i);
    u = p.CorreUna();
    ASSERT_NE(u, nullptr);
    otra = Rehace(p.Libro(), p.Guarda(*u));
    ASSERT_NE(otra.corrida, nullptr) << otra.reparo;
    EXPECT_EQ(otra.aviso, "");
    EsperaLoMismo(*u, *otra.corrida);
}

TEST(CorridaGuardada, UnaSerieVueltaACorrerDaLosMismosBits)
{
    ProyectoCorrido p;
    p.PonMuestra();
    PonTormenta(p.s, 0, 0, 1);
    for (const int tabla : {0, 1}) {
        const auto u = p.CorreSerie(static_cast<std::int16_t>(tabla));
        ASSERT_NE(u, nullptr);
        const std::string archivo = p.Guarda(*u);
        p.disco.Quita("/trabajo/TablasPDRs_pdr.vlm");  // the storms are kept with the run
        const Rehecha otra = Rehace(p.Libro(), archivo);
        ASSERT_NE(otra.corrida, nullptr) << otra.reparo;
        EXPECT_EQ(otra.aviso, "");
        EXPECT_TRUE(otra.corrida->esSerie);
        EXPECT_EQ(otra.ficha.clase, "serie");
        EsperaLoMismo(*u, *otra.corrida);
        // The greatest of the storms, and which it was.
        const model::Resultados& r = u->r();
        int fila = 1, mayor = 1;
        while (r.Secuencia[static_cast<std::size_t>(fila)] != r.Salidas[1])
            ++fila;
        for (int n = 2; n <= u->serie.NroSeriePDR; ++n)
            if (r.QMax(fila, n) > r.QMax(fila, mayor)) mayor = n;
        ASSERT_EQ(otra.ficha.salidas.size(), 1U);
        EXPECT_EQ(otra.ficha.salidas[0].caudal, double{r.QMax(fila, mayor)});
        EXPECT_FALSE(otra.ficha.salidas[0].minuto.has_value());
        EXPECT_TRUE(otra.ficha.salidas[0].tormenta.ends_with("R " + std::to_string(u->serie.SerieR(mayor)) +
                                                             " años"));
        p.disco.Pon("/trabajo/TablasPDRs_pdr.vlm",
                    apoyo::BytesDeArchivo(std::filesystem::path(SIRO_DATA_DIR) / "TablasPDRs_pdr.vlm"));
    }
}

TEST(CorridaGuardada, ProyectosAlAzarVuelvenBitPorBit)
{
    int corridas = 0;
    for (std::uint32_t semilla = 1; semilla <= 60; ++semilla) {
        RedAlAzar azar(semilla);
        ProyectoCorrido p;
        p.PonRed(azar.m.red);
        p.s.Tormenta = azar.m.lluvias[0].tormenta;
        p.s.Pasos = azar.m.lluvias[0].pasos;
        const auto u = p.CorreUna();
        if (u == nullptr) continue;
        ++corridas;
        const Rehecha otra = Rehace(p.Libro(), p.Guarda(*u));
        ASSERT_NE(otra.corrida, nullptr) << "seed " << semilla << ": " << otra.reparo;
        EXPECT_EQ(otra.aviso, "") << "seed " << semilla;
        EsperaLoMismo(*u, *otra.corrida);
        EXPECT_EQ(otra.ficha.quien, "Operadora");
    }
    EXPECT_GE(corridas, 40);
}

// Beside a project that has changed since, moved, or gone altogether but for its ledger.
TEST(CorridaGuardada, NoMiraLosArchivosDelProyecto)
{
    ProyectoCorrido p;
    p.PonMuestra();
    PonTormenta(p.s, 60, 60, 1);
    const auto u = p.CorreUna();
    ASSERT_NE(u, nullptr);
    const std::string archivo = p.Guarda(*u);
    for (const std::string& ruta : p.disco.Archivos())
        if (ruta.starts_with("/proy/Quelmar_") && !ruta.ends_with(".zip")) p.disco.Quita(ruta);
    const std::vector<std::string> antes = p.disco.Archivos();
    const Rehecha otra = Rehace(p.Libro(), archivo);
    ASSERT_NE(otra.corrida, nullptr) << otra.reparo;
    EsperaLoMismo(*u, *otra.corrida);
    EXPECT_EQ(p.disco.Archivos(), antes);
}

TEST(CorridaGuardada, DiceQueLosResultadosNoSonLosGuardados)
{
    ProyectoCorrido p;
    p.PonMuestra();
    PonTormenta(p.s, 60, 60, 1);
    const auto u = p.CorreUna();
    ASSERT_NE(u, nullptr);
    CorridaPorGuardar c = PorGuardar(*u, p.Circunstancias());
    c.ficha.huellaResultados.front() = c.ficha.huellaResultados.front() == '0' ? '1' : '0';
    CorridaPorGuardar deAntes = c;
    deAntes.ficha.programa = "0.9";
    EXPECT_EQ(Rehace(p.Libro(), Guarda(p.Libro(), c)).aviso.substr(0, 55),
              "Vuelta a correr, la corrida no da los mismos resultados");
    const Rehecha otra = Rehace(p.Libro(), Guarda(p.Libro(), deAntes));
    EXPECT_NE(otra.corrida, nullptr);
    EXPECT_TRUE(otra.aviso.starts_with("La corrida se hizo con la versión 0.9 del programa;")) << otra.aviso;
}

TEST(CorridaGuardada, LaQueNoSePuedeVolverACorrerDicePorQue)
{
    ProyectoCorrido p;
    p.PonMuestra();
    PonTormenta(p.s, 60, 60, 1);
    const auto u = p.CorreUna();
    ASSERT_NE(u, nullptr);
    CorridaPorGuardar conjunto{.ficha = PorGuardar(*u, p.Circunstancias()).ficha};
    conjunto.ficha.clase = "conjunto";
    EXPECT_EQ(Rehace(p.Libro(), Guarda(p.Libro(), conjunto)).reparo,
              "De muchas corridas se guardan lo pedido y lo hallado: no vuelven a correrse.");
    CorridaPorGuardar vacia{.ficha = PorGuardar(*u, p.Circunstancias()).ficha};
    EXPECT_EQ(Rehace(p.Libro(), Guarda(p.Libro(), vacia)).reparo,
              "Al archivo de la corrida le falta la tormenta o la configuración del proyecto.");
    CorridaPorGuardar rota = PorGuardar(*u, p.Circunstancias());
    for (study::Pieza& pieza : rota.piezas)
        if (pieza.nombre == "lluvia.json") {
            const std::size_t donde = pieza.bytes.find("\"duracion_min\": 60");
            ASSERT_NE(donde, std::string::npos);
            pieza.bytes.replace(donde, 18, "\"duracion_min\": 1e9");
        }
    EXPECT_NE(Rehace(p.Libro(), Guarda(p.Libro(), rota)).reparo, "");
    EXPECT_EQ(Rehace(p.Libro(), "no está.zip").corrida, nullptr);
    EXPECT_NE(Rehace(p.Libro(), "no está.zip").reparo, "");
}

}  // namespace
}  // namespace runs
