// SPDX-License-Identifier: GPL-3.0-or-later
//
// What is typed and pasted in the grids of the editor reaches the disk, and a run by the real program shows
// it.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <string_view>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/Compara.h"
#include "batch/CorridaLote.h"
#include "batch/Lote.h"
#include "checks/ProyectoAparte.h"
#include "e2e/Programa.h"
#include "editor/fichas/dlgTabla.h"
#include "editor/fichas/dlgUEHsEditTabla.h"
#include "model/Componentes.h"
#include "model/Numeros.h"
#include "model/Siro.h"

namespace {

namespace fs = std::filesystem;

using editor::TipoTabla;

/// Peak outflow [m3/s] of each component.
using Picos = std::map<std::string, float>;

/// A copy of the delivered data with the sample project open.
class GrillasIdaYVuelta : public testing::Test {
  protected:
    GrillasIdaYVuelta()
        : dir(fs::canonical(carpeta.Camino()).string()), conf(dir + "/Proyectos/Quelmar_Conf.vlm")
    {
        fs::copy(SIRO_DATA_DIR, dir, fs::copy_options::recursive);
        s.Anfitrion = anfitrion.Puerta();
        s.Proyecto.DirTrabajo = dir;
        checks::AbreProyecto(s, conf);
        model::LeeUEHs(s);
        anfitrion->sucesos.clear();
    }
    Picos Corre()
    {
        const e2e::Salida salida =
            e2e::Lote({"una", conf, "--trabajo", dir, "--resultados", dir + "/r.csv"}, "/");
        EXPECT_EQ(salida.estado, 0) << salida.errores;
        std::istringstream lineas(apoyo::BytesDeArchivo(dir + "/r.csv"));
        std::string linea, nombre, campo;
        std::getline(lineas, linea);
        Picos picos;
        while (std::getline(lineas, linea)) {
            std::istringstream campos(linea);
            std::getline(campos, nombre, ',');
            for (int i = 0; i < 4; ++i)
                std::getline(campos, campo, ',');
            picos[nombre] = std::max(picos[nombre], std::stof(campo));
        }
        return picos;
    }
    /// Multiplies a column of a table by way of the grid and applies.
    void Multiplica(TipoTabla tipo, int columna, int factor)
    {
        editor::dlgTabla f;
        editor::Abre(f, s, tipo, "", "");
        std::string bloque;
        for (int fila = 1; fila <= f.NroFilas; ++fila) {
            std::string texto = model::NumeroATexto(factor * f.grilla.Numero({fila, columna}));
            std::replace(texto.begin(), texto.end(), '.', ',');
            bloque += texto + "\r\n";
        }
        forms::Mueve(f.grilla, {1, columna});
        forms::Pega(f.grilla, s, bloque);
        editor::cmdAplicar(f, s);
        EXPECT_TRUE(anfitrion->Avisos().empty());
    }

    apoyo::CarpetaTemporal carpeta;
    std::string dir, conf;
    apoyo::AnfitrionPrueba anfitrion;
    model::Siro s;
};

TEST_F(GrillasIdaYVuelta, ElAreaTecladaEnLaTablaCambiaEsaUEHYNoOtra)
{
    const Picos antes = Corre();
    editor::dlgUEHsEditTabla f;
    editor::Abre(f, s);
    forms::Grilla& g = f.MSFlexGridEditUEHs;
    const std::string nombre = g.Texto({1, 2});
    const std::string doble = model::NumeroATexto(2 * g.Numero({1, 5}));
    for (const char c : doble)
        forms::Escribe(g, s, std::string_view(&c, 1));
    editor::OKButton(f, s);
    ASSERT_EQ(anfitrion->Avisos().size(), 1U);  // that the network is saved
    const Picos despues = Corre();
    ASSERT_EQ(antes.size(), despues.size());
    EXPECT_GT(despues.at(nombre), 1.5F * antes.at(nombre));
    for (const auto& [otro, pico] : antes)
        if (otro.starts_with("u-") && otro != nombre) {
            EXPECT_EQ(despues.at(otro), pico) << otro;
        }
}

TEST_F(GrillasIdaYVuelta, ElDobleDeCaudalEnLaTablaDelLagoSubeSuPico)
{
    const Picos antes = Corre();
    Multiplica(TipoTabla::SHVQ, 4, 2);
    EXPECT_GT(Corre().at("l-Huillín"), 1.05F * antes.at("l-Huillín"));
}

TEST_F(GrillasIdaYVuelta, ElDobleDeCaudalEnLaTablaHQSubeElPicoDeLaRepresa)
{
    const Picos antes = Corre();
    s.Seleccion.RepresaSel = 2;
    Multiplica(TipoTabla::FQ, 2, 2);
    const Picos despues = Corre();
    EXPECT_GT(despues.at("r-Calfún"), 1.05F * antes.at("r-Calfún"));
}

TEST_F(GrillasIdaYVuelta, ElDobleDeVolumenEnLaTablaHASBajaElPicoDeLaRepresa)
{
    const Picos antes = Corre();
    s.Seleccion.RepresaSel = 1;
    Multiplica(TipoTabla::SHV, 3, 2);
    const Picos despues = Corre();
    EXPECT_LT(despues.at("r-Quelmar"), 0.95F * antes.at("r-Quelmar"));
}

}  // namespace
