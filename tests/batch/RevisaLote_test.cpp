// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/RevisaLote.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "batch/CorridaLote.h"
#include "batch/Lote.h"
#include "batch/ProyectoDePrueba.h"

namespace {

struct Respuesta {
    int estado = -1;
    std::string estandar{}, errores{};
};

struct RevisaLote : testing::Test {
    [[nodiscard]] Respuesta Corre(std::vector<std::string> palabras) const
    {
        palabras.insert(palabras.begin(), {"siro-lote", "revisa"});
        std::vector<const char*> argv;
        for (const auto& palabra : palabras)
            argv.push_back(palabra.c_str());
        Respuesta r;
        r.estado = batch::Lote(static_cast<int>(argv.size()), argv.data(),
                               {[&](std::string_view t) { r.estandar += t; },
                                [&](std::string_view t) { r.errores += t; }, false});
        return r;
    }
    [[nodiscard]] Respuesta Revisa(std::vector<std::string> opciones = {}) const
    {
        opciones.insert(opciones.begin(), {proyecto.Conf(), "--trabajo", proyecto.Dir()});
        return Corre(std::move(opciones));
    }
    prueba::ProyectoDePrueba proyecto;
};

bool Contiene(const std::string& texto, std::string_view trozo)
{
    return texto.find(trozo) != std::string::npos;
}

TEST_F(RevisaLote, SinErroresTerminaEnCero)
{
    const Respuesta r = Revisa();
    EXPECT_EQ(r.estado, batch::EstadoCompleto) << r.estandar;
    EXPECT_FALSE(Contiene(r.estandar, "error ")) << r.estandar;
    EXPECT_EQ(r.errores, "");
}

TEST_F(RevisaLote, UnErrorDaElEstadoUnoYEncabezaLaLista)
{
    proyecto.Cambia("Mio_UEHs.vlm", "\"l-1\"\r\n1\r\n600", "\"l-9\"\r\n1\r\n600");
    const Respuesta r = Revisa();
    EXPECT_EQ(r.estado, batch::EstadoInterrumpido);
    EXPECT_TRUE(r.estandar.starts_with("error 2")) << r.estandar;
    EXPECT_TRUE(Contiene(r.estandar, "c-1")) << r.estandar;
    const Respuesta json = Revisa({"--json"});
    EXPECT_EQ(json.estado, batch::EstadoInterrumpido);
    EXPECT_TRUE(json.estandar.starts_with("[\n {\"gravedad\": \"error\", \"numero\": 2")) << json.estandar;
    EXPECT_TRUE(json.estandar.ends_with("}\n]\n")) << json.estandar;
}

// 100 ha of UEHs.
TEST_F(RevisaLote, LaCuencaMedidaSeComparaConLasUEHs)
{
    EXPECT_EQ(Revisa({"--cuenca", "100"}).estandar, Revisa().estandar);
    EXPECT_NE(Revisa({"--cuenca", "200"}).estandar, Revisa().estandar);
}

TEST_F(RevisaLote, UnProyectoQueNoEstaEsUnError)
{
    const Respuesta r = Corre({proyecto.Ruta("Otro_Conf.vlm"), "--trabajo", proyecto.Dir()});
    EXPECT_EQ(r.estado, batch::EstadoInterrumpido);
    EXPECT_TRUE(r.estandar.starts_with("error 200: No se puede abrir el proyecto (")) << r.estandar;
    EXPECT_TRUE(r.estandar.ends_with("1 error, 0 avisos, 0 notas\n")) << r.estandar;
}

TEST_F(RevisaLote, LoQueNoEsDeEstaOrdenEsUnaLineaErronea)
{
    for (const char* const opcion : {"--pizarra", "--avisos", "--hilos", "--nada"}) {
        const Respuesta r = Revisa({opcion});
        EXPECT_EQ(r.estado, batch::EstadoOrdenErronea) << opcion;
        EXPECT_EQ(r.estandar, "") << opcion;
        EXPECT_TRUE(Contiene(r.errores, "\n\nUso: siro-lote revisa CONF [opciones]")) << r.errores;
    }
    EXPECT_EQ(Revisa({"--cuenca", "-1"}).estado, batch::EstadoOrdenErronea);
    EXPECT_EQ(Corre({}).estado, batch::EstadoOrdenErronea);
}

}  // namespace
