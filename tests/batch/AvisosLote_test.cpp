// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/AvisosLote.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "batch/Lote.h"
#include "batch/ProyectoDePrueba.h"

namespace {

struct Respuesta {
    int estado = -1;
    std::string estandar{};
    std::string errores{};
};

class AvisosLote : public testing::Test {
  protected:
    [[nodiscard]] Respuesta Corre(const char* orden, const std::vector<std::string>& opciones) const
    {
        std::vector<std::string> palabras{"siro-lote", orden, proyecto.Conf(), "--trabajo", proyecto.Dir()};
        palabras.insert(palabras.end(), opciones.begin(), opciones.end());
        std::vector<const char*> argv;
        for (const auto& palabra : palabras)
            argv.push_back(palabra.c_str());
        Respuesta r;
        r.estado = batch::Lote(static_cast<int>(argv.size()), argv.data(),
                               {[&](std::string_view t) { r.estandar += t; },
                                [&](std::string_view t) { r.errores += t; }, false});
        return r;
    }
    /// The 64 digits behind the last word of a text.
    static std::string Huella(const std::string& texto)
    {
        const std::size_t lugar = texto.rfind("huella ");
        return lugar == std::string::npos ? "" : texto.substr(lugar + 7);
    }
    void PonSerie() const
    {
        proyecto.Escribe("TablasPDRs_pdr.vlm",
                         "3,0,0,0\r\n\"\"\r\n60,60,10\r\n120,60,25\r\n90,120,50\r\n\"\"\r\n\"\"\r\n\"\"\r\n");
    }
    prueba::ProyectoDePrueba proyecto;
};

bool Contiene(const std::string& texto, std::string_view trozo)
{
    return texto.find(trozo) != std::string::npos;
}

TEST_F(AvisosLote, SinPedirlosNoCambiaUnByte)
{
    const Respuesta sin = Corre("una", {"--pizarra", "--resultados", proyecto.Ruta("callada.csv")});
    const Respuesta con =
        Corre("una", {"--pizarra", "--resultados", proyecto.Ruta("avisada.csv"), "--avisos"});
    EXPECT_EQ(con.estado, sin.estado);
    EXPECT_EQ(con.errores, sin.errores);
    EXPECT_FALSE(Contiene(sin.estandar, "huella"));
    EXPECT_EQ(proyecto.Lee("avisada.csv"), proyecto.Lee("callada.csv"));
    // the Slate's heading tells the time of day: as long, and all else behind it
    ASSERT_GT(con.estandar.size(), sin.estandar.size());
    EXPECT_TRUE(Contiene(con.estandar.substr(sin.estandar.size()), "error 103 l-1: "));
    EXPECT_FALSE(Contiene(con.estandar.substr(0, sin.estandar.size()), "error 103"));
}

// 6 steps of 16.6667 m3/s leave u-1, 60000 m3, and get through c-1 within the 7 steps of the run. The table
// of l-1 is too low to be looked up: 7 steps of 2.5 m3/s leave it, 10500 m3, and it holds what it held.
TEST_F(AvisosLote, DicenElBalanceDeCadaComponenteYLaHuella)
{
    const Respuesta r = Corre("una", {"--avisos"});
    EXPECT_EQ(r.estado, 0);
    EXPECT_TRUE(
        Contiene(r.estandar, "balance u-1: entra 60000 m3, sale 60000 m3, se retiene o infiltra 0 m3, "))
        << r.estandar;
    EXPECT_TRUE(Contiene(r.estandar, "balance c-1: entra 60000 m3, sale 60000 m3")) << r.estandar;
    EXPECT_TRUE(Contiene(r.estandar, "balance l-1: entra 60000 m3, sale 10500 m3")) << r.estandar;
    EXPECT_TRUE(Contiene(r.estandar, "\nbalance *: entra 60000 m3, sale 10500 m3")) << r.estandar;
    const std::string huella = Huella(r.estandar);
    ASSERT_EQ(huella.size(), 65U) << r.estandar;
    EXPECT_EQ(huella.find_first_not_of("0123456789abcdef"), 64U);
    EXPECT_EQ(huella.back(), '\n');
}

TEST_F(AvisosLote, LaHuellaNoDependeDeComoEstanEscritosLosArchivos)
{
    const std::string antes = Huella(Corre("una", {"--avisos"}).estandar);
    proyecto.Cambia("Mio_UEHs.vlm", "\"u-1\"\r\n100\r\n", "\"u-1\"\r\n1.0E2\r\n");
    EXPECT_EQ(Huella(Corre("una", {"--avisos", "--rec", "50"}).estandar), antes);
    proyecto.Cambia("Mio_UEHs.vlm", "\"u-1\"\r\n1.0E2\r\n", "\"u-1\"\r\n101\r\n");
    EXPECT_NE(Huella(Corre("una", {"--avisos"}).estandar), antes);
}

TEST_F(AvisosLote, EnJsonVaLoMismo)
{
    const Respuesta texto = Corre("una", {"--avisos"}), json = Corre("una", {"--avisos", "--json"});
    EXPECT_EQ(json.estado, 0);
    EXPECT_TRUE(json.estandar.starts_with("{\"avisos\": [")) << json.estandar;
    EXPECT_TRUE(Contiene(json.estandar, "\"numero\": 103, \"componente\": \"l-1\"")) << json.estandar;
    EXPECT_TRUE(Contiene(json.estandar, "{\"componente\": \"l-1\", \"entra\": ")) << json.estandar;
    const std::string huella = Huella(texto.estandar).substr(0, 64);
    EXPECT_TRUE(json.estandar.ends_with("\"huella\": \"" + huella + "\"}\n")) << json.estandar;
}

// A quoted field may hold anything but a quote.
TEST_F(AvisosLote, UnNombreConBarraYSaltoNoRompeElJsonNiElRenglon)
{
    for (const char* const archivo : {"Mio_UEHs.vlm", "Mio_LHASQ.vlm"}) {
        std::string bytes = proyecto.Lee(archivo);
        for (std::size_t n = bytes.find("l-1"); n != std::string::npos; n = bytes.find("l-1", n + 5))
            bytes.replace(n, 3, "l\\\r\n1");
        proyecto.Escribe(archivo, bytes);
    }
    const Respuesta texto = Corre("una", {"--avisos"}), json = Corre("una", {"--avisos", "--json"});
    EXPECT_TRUE(Contiene(texto.estandar, "balance l\\  1: entra ")) << texto.estandar;
    EXPECT_TRUE(Contiene(json.estandar, R"({"componente": "l\\\u000d\u000a1", "entra": )")) << json.estandar;
}

TEST_F(AvisosLote, DeUnaSerieSonLosMismosConCualquierNumeroDeHilos)
{
    PonSerie();
    const Respuesta uno = Corre("serie", {"--avisos", "--hilos", "1"}),
                    tres = Corre("serie", {"--avisos", "--hilos", "3"});
    EXPECT_EQ(uno.estado, 0) << uno.errores;
    EXPECT_EQ(uno.estandar, tres.estandar);
    EXPECT_TRUE(Contiene(uno.estandar, "error 103 l-1: ")) << uno.estandar;
    EXPECT_TRUE(Contiene(uno.estandar, "en 3 de 3 tormentas")) << uno.estandar;
    EXPECT_EQ(Huella(uno.estandar).size(), 65U);
    EXPECT_EQ(Corre("serie", {"--hilos", "1"}).estandar, "");
}

TEST_F(AvisosLote, UnaCorridaQueNoTerminaLoDiceYConservaSuEstado)
{
    proyecto.Cambia("Mio_UEHs.vlm", "\"l-1\"\r\n1\r\n600", "\"l-1\"\r\n0\r\n600");  // its velocity
    const Respuesta r = Corre("una", {"--avisos"});
    EXPECT_EQ(r.estado, 1);
    EXPECT_TRUE(Contiene(r.estandar, "error 121: La corrida no llegó a su fin")) << r.estandar;
    const Respuesta nula = Corre("una", {"--avisos", "--pp", "0"});
    EXPECT_EQ(nula.estado, 1);
    EXPECT_TRUE(Contiene(nula.estandar, "La lámina o la duración de la tormenta es 0")) << nula.estandar;
}

}  // namespace
