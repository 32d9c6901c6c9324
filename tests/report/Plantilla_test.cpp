// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/Plantilla.h"

#include <gtest/gtest.h>

#include "apoyo/Compara.h"
#include "apoyo/DiscoPrueba.h"
#include "model/Texto.h"
#include "report/Html.h"
#include "report/Marcado.h"
#include "report/Memoria.h"

namespace report {
namespace {

using Clase = Renglon::Clase;
using Faltas = std::vector<Falta>;

TEST(PlantillaDeMemoria, SeLeeRenglonPorRenglon)
{
    const Plantilla p = LeePlantilla(
        "\xEF\xBB\xBF%% nada\r\n# Objeto {objeto}\r\nUn párrafo\r\nque sigue\r\n\r\nOtro\r\n"
        "- uno\r\n  y más\r\n- dos\r\n1. primero\r\n= Q = 1\r\n### Sin clave\r\n[[ tabla uehs ]]\r\n"
        "[[si no serie]]\r\nEn el año\r\n1998. fue así\r\n[[fin]]\r\n");
    EXPECT_EQ(p.faltas, Faltas{});
    const std::vector<Renglon> esperados{
        {Clase::Titulo, 2, 1, "objeto", "Objeto"},
        {Clase::Parrafo, 3, 0, "", "Un párrafo que sigue"},
        {Clase::Parrafo, 6, 0, "", "Otro"},
        {Clase::Vineta, 7, 0, "", "uno y más"},
        {Clase::Vineta, 9, 0, "", "dos"},
        {Clase::Numerado, 10, 0, "", "primero"},
        {Clase::Formula, 11, 0, "", "Q = 1"},
        {Clase::Titulo, 12, 3, "", "Sin clave"},
        {Clase::Mando, 13, 0, "tabla", "uehs"},
        {Clase::Mando, 14, 0, "si no", "serie"},
        {Clase::Parrafo, 15, 0, "", "En el año 1998. fue así"},
        {Clase::Mando, 17, 0, "fin", ""},
    };
    EXPECT_EQ(p.renglones, esperados);
}

TEST(PlantillaDeMemoria, CadaFaltaDiceSuRenglonYElMotivo)
{
    const auto faltas = [](std::string_view texto) { return LeePlantilla(texto).faltas; };
    EXPECT_EQ(faltas("a\n[[tabla uehs"),
              (Faltas{{2, "A la marca le falta ]] al final, o no está sola en su renglón."}}));
    EXPECT_EQ(faltas("[[tabla]]"), (Faltas{{1, "Falta decir qué: [[tabla ...]]."}}));
    EXPECT_EQ(faltas("[[indice todo]]"), (Faltas{{1, "[[indice]] va sin nada más."}}));
    EXPECT_EQ(faltas("[[cuadro uehs]]"), (Faltas{{1, "No hay una marca [[cuadro uehs]]."}}));
    EXPECT_EQ(faltas("[[siempre]]"), (Faltas{{1, "No hay una marca [[siempre]]."}}));
    EXPECT_EQ(faltas("x\n\n[[fin]]"), (Faltas{{3, "Este [[fin]] no tiene su [[si]]."}}));
    EXPECT_EQ(faltas("[[si serie]]\n[[si uehs]]\n[[fin]]"),
              (Faltas{{1, "A este [[si]] le falta su [[fin]]."}}));
    EXPECT_EQ(faltas("#### Hondo"), (Faltas{{1, "Los títulos tienen hasta tres niveles: #, ## y ###."}}));
    EXPECT_EQ(faltas("#"), (Faltas{{1, "Falta el texto del título."}}));
    EXPECT_EQ(faltas("# A {a}\n# B {a}"), (Faltas{{2, "La clave {a} ya es de otro título."}}));
    EXPECT_EQ(LeePlantilla("[[fin]]\n# A\n[[nada]]").renglones.size(), 1U) << "the rest is there";
}

TEST(PlantillaDeMemoria, LaDeWindows1252SeLeeYSeDice)
{
    const Plantilla p = LeePlantilla(model::AWindows1252("# Año {a}"));
    ASSERT_EQ(p.renglones.size(), 1U);
    EXPECT_EQ(p.renglones[0].texto, "Año");
    EXPECT_EQ(p.faltas, (Faltas{{0, "La plantilla no está en UTF-8: se la leyó como Windows-1252."}}));
    EXPECT_EQ(LeePlantilla("").renglones.size(), 0U);
}

Texto Con(std::string texto, Faltas* faltas = nullptr)
{
    Faltas suyas;
    Texto t = TextoConMarcas(
        {.linea = 7, .texto = std::move(texto)},
        [](std::string_view nombre, std::string& dice) {
            dice = "<*" + std::string(nombre) + "*>";
            return nombre != "nada";
        },
        suyas);
    if (faltas != nullptr) *faltas = suyas;
    return t;
}

TEST(PlantillaDeMemoria, ManerasDelTexto)
{
    EXPECT_EQ(Con("a **b *c*** d"), (Texto{{"a "}, {"b ", true}, {"c", true, true}, {" d"}}));
    EXPECT_EQ(Con("Q_{0}·e^{−t/k} m"), (Texto{{"Q"},
                                              {"0", false, false, Altura::Abajo},
                                              {"·e"},
                                              {"−t/k", false, false, Altura::Arriba},
                                              {" m"}}));
    EXPECT_EQ(Con("u-\\* y Quelmar_Conf.vlm a^b {x}"), (Texto{{"u-* y Quelmar_Conf.vlm a^b {x}"}}));
    EXPECT_EQ(Con("de {{ proyecto }}."), (Texto{{"de <*proyecto*>."}})) << "marks in a value are none";
}

TEST(PlantillaDeMemoria, FaltasDentroDelTexto)
{
    Faltas faltas;
    EXPECT_EQ(EnLlano(Con("de {{nada}} y {{abierta", &faltas)), "de {{nada}} y {{abierta");
    EXPECT_EQ(faltas, (Faltas{{7, "No hay una marca {{nada}}."}, {7, "A la marca {{ le falta su }}."}}));
    Con("a^{b **c", &faltas);
    EXPECT_EQ(faltas,
              (Faltas{{7, "Falta } al final de ^{ o de _{."}, {7, "Falta ** al final de la negrita."}}));
    Con("a *c", &faltas);
    EXPECT_EQ(faltas, (Faltas{{7, "Falta * al final de la cursiva."}}));
}

TEST(PlantillaDeMemoria, LaDeFabricaEsLaEntregadaYNoTieneFaltas)
{
    EXPECT_TRUE(apoyo::MismoQueArchivo(SIRO_DATA_DIR "/Plantillas/memoria.txt", PlantillaDeFabrica()));
    EXPECT_EQ(LeePlantilla(PlantillaDeFabrica()).faltas, Faltas{});
    EXPECT_EQ(Memoria({}, {}, PlantillaDeFabrica()).faltas, Faltas{});
    std::vector<std::string> claves;
    for (const Capitulo& c : CapitulosDe(PlantillaDeFabrica()))
        claves.push_back(c.clave);
    EXPECT_EQ(claves, (std::vector<std::string>{"objeto", "cuenca", "datos", "tormenta", "metodos",
                                                "resultados", "serie", "embalses", "empiricas", "avisos",
                                                "verificacion", "repetir"}));
}

TEST(PlantillaDeMemoria, LaDelUsuarioVaPrimero)
{
    apoyo::DiscoPrueba disco;
    disco.PonDirectorio("/trabajo");
    EXPECT_EQ(PlantillaEnUso(disco.Puerta(), "/trabajo"), PlantillaDeFabrica());
    const std::string ruta = PreparaPlantilla(disco.Puerta(), "/trabajo");
    EXPECT_EQ(ruta, model::Ruta(model::Ruta("/trabajo", "Plantillas"), "memoria.txt"));
    EXPECT_EQ(disco.Bytes(ruta), PlantillaDeFabrica());
    disco.Pon(ruta, "# Mía");
    EXPECT_EQ(PreparaPlantilla(disco.Puerta(), "/trabajo"), ruta);
    EXPECT_EQ(PlantillaEnUso(disco.Puerta(), "/trabajo"), "# Mía");
    apoyo::DiscoPrueba malo = disco;
    malo.FallaEn(1, model::NumeroFalla::AccesoRuta);
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { PlantillaEnUso(malo.Puerta(), "/trabajo"); }), 75);
}

TEST(PlantillaDeMemoria, LaAyudaDiceTodasLasMarcas)
{
    const std::string pagina = apoyo::BytesDeArchivo(SIRO_DATA_DIR "/Ayuda/memoria_plantilla.html");
    std::size_t cuantas = 0;
    for (const Marca& m : Marcas()) {
        const std::string fila =
            "<tr><td><tt>" + Escapado(m.escrita) + "</tt></td><td>" + Escapado(m.explica) + "</td></tr>";
        EXPECT_NE(pagina.find(fila), std::string::npos) << fila;
        ++cuantas;
    }
    std::size_t filas = 0;
    for (std::size_t i = pagina.find("<tr><td><tt>", pagina.find("id=\"partes\"")); i != std::string::npos;
         i = pagina.find("<tr><td><tt>", i + 1))
        ++filas;
    EXPECT_EQ(filas, cuantas) << "the page tells of a mark that isn't there";
}

/// Every mark alone in a template is known to the program, with data or without.
TEST(PlantillaDeMemoria, CadaMarcaSeConoce)
{
    for (const Marca& m : Marcas()) {
        std::string texto = m.escrita;
        if (texto.find("X") != std::string::npos) continue;  // of conditions as such
        if (texto.starts_with("[[si ")) texto += "\ntexto\n[[fin]]";
        EXPECT_EQ(Memoria({}, {}, texto).faltas, Faltas{}) << texto;
    }
}

}  // namespace
}  // namespace report
