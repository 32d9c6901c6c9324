// SPDX-License-Identifier: GPL-3.0-or-later
//
// The series of the delivered sample project in the abacus and in both tables, against the file that the run
// writes.

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/Compara.h"
#include "batch/CorridaLote.h"
#include "checks/ProyectoAparte.h"
#include "engine/mdlSeriePDR.h"
#include "model/Disco.h"
#include "model/Siro.h"
#include "model/Texto.h"
#include "results/dlgChart3.h"
#include "results/dlgTablaSalePDR.h"
#include "results/dlgTablaSalePDR2.h"

namespace results {
namespace {

namespace fs = std::filesystem;

using Campos = std::vector<std::string>;

class SerieDeMuestra : public testing::Test {
  protected:
    static constexpr std::size_t RenglonesDeCabeza = 9;
    static constexpr std::size_t NroTitulos = 5;

    void SetUp() override
    {
        fs::copy(SIRO_DATA_DIR, dir.Camino(), fs::copy_options::recursive);
        s.Anfitrion = anfitrion.Puerta();
        s.Proyecto.DirTrabajo = dir.Camino().string();
        checks::AbreProyecto(s, model::Ruta(dir.Ruta("Proyectos"), "Quelmar_Conf.vlm"));
        batch::FijaTormenta(s, {.orden = batch::Opciones::Orden::Serie});
        ASSERT_EQ(engine::CorreSeriePDR(s), engine::FinSerie::Completa);
        LeeArchivo();
        ASSERT_GT(renglones.size(), 1000U);
    }
    /// The records below the heads, with their quotes taken off. The sample's names hold no comma.
    void LeeArchivo()
    {
        const std::string texto =
            model::DeWindows1252(apoyo::BytesDeArchivo(dir.Ruta("SaleTablasQDRs_tem.txt")));
        std::size_t numero = 0;
        for (std::size_t i = 0; i < texto.size(); ++numero) {
            const std::size_t fin = texto.find("\r\n", i);
            if (numero >= RenglonesDeCabeza) renglones.push_back(Parte(texto.substr(i, fin - i)));
            i = fin + 2;
        }
    }
    static Campos Parte(const std::string& renglon)
    {
        Campos campos(1);
        for (const char letra : renglon) {
            if (letra == ',')
                campos.emplace_back();
            else if (letra != '"')
                campos.back() += letra;
        }
        return campos;
    }
    /// A row as a record of the file: without the two last cells where they are empty.
    static Campos ComoRegistro(const FilaQDR& fila)
    {
        Campos campos(fila.celdas.begin(), fila.celdas.end());
        while (campos.back().empty())
            campos.pop_back();
        return campos;
    }
    static std::vector<Campos> Registros(const TablaQDR& tabla)
    {
        std::vector<Campos> registros;
        for (const FilaQDR& fila : tabla.filas)
            if (fila.clase == ClaseFila::Componente) registros.push_back(ComoRegistro(fila));
        return registros;
    }
    [[nodiscard]] std::vector<Campos> RenglonesDe(const std::string& componente) const
    {
        std::vector<Campos> suyos;
        for (const Campos& renglon : renglones)
            if (renglon[0] == componente) suyos.push_back(renglon);
        return suyos;
    }
    /// Each cell of the abacus against the record with its duration and recurrence; `campo`: place of the
    /// magnitude in a record. Returns how many cells it has.
    std::size_t ComparaAbaco(const dlgChart3& f, const std::string& componente, std::size_t campo)
    {
        std::map<std::pair<std::string, std::string>, double> delArchivo;
        for (const Campos& r : RenglonesDe(componente))
            delArchivo[{r[3], r[4]}] = std::stod(r.at(campo));
        std::size_t celdas = 0;
        for (const forms::Serie& curva : f.Grafico.series)
            for (std::size_t i = 0; i < f.Grafico.categorias.size(); ++i) {
                if (forms::EstaVacia(curva.celdas[i])) continue;
                ++celdas;
                const auto hallado = delArchivo.find({f.Grafico.categorias[i], curva.leyenda});
                if (hallado == delArchivo.end()) {
                    ADD_FAILURE() << componente << " " << f.Grafico.categorias[i] << " " << curva.leyenda;
                    continue;
                }
                EXPECT_FLOAT_EQ(static_cast<float>(curva.celdas[i]), static_cast<float>(hallado->second));
            }
        EXPECT_EQ(celdas, delArchivo.size()) << componente;
        return celdas;
    }

    apoyo::CarpetaTemporal dir;
    apoyo::AnfitrionPrueba anfitrion;
    model::Siro s;
    std::vector<Campos> renglones;
};

TEST_F(SerieDeMuestra, LaTablaCompletaTieneLosRenglonesDelArchivo)
{
    dlgTablaSalePDR f;
    Abre(f, s);
    const std::vector<Campos> registros = Registros(f.MSFlexGridTablaSaleQDR);
    ASSERT_EQ(registros.size(), renglones.size());
    for (std::size_t i = 0; i < registros.size(); ++i)
        ASSERT_EQ(registros[i], renglones[i]) << i;
    // titles, components, a total per storm, the last row
    const auto componentes = static_cast<std::size_t>(s.Resultados.NroComponentes);
    EXPECT_EQ(f.MSFlexGridTablaSaleQDR.filas.size(),
              NroTitulos + renglones.size() + renglones.size() / componentes + 1);
}

TEST_F(SerieDeMuestra, LaTablaPorComponenteTambien)
{
    dlgTablaSalePDR2 f;
    Abre(f, s);
    ASSERT_EQ(f.lstCompos.size(), static_cast<std::size_t>(s.Resultados.NroComponentes));
    for (std::size_t i = 0; i < f.lstCompos.size(); ++i) {
        f.lstComposIndice = static_cast<int>(i);
        lstCompos_Click(f, s);
        EXPECT_EQ(Registros(f.MSFlexGridTablaSaleQDR), RenglonesDe(f.lstCompos[i])) << f.lstCompos[i];
    }
}

TEST_F(SerieDeMuestra, ElAbacoTieneLosCaudalesDelArchivo)
{
    dlgChart3 f;
    Abre(f, s);
    std::size_t celdas = 0;
    for (std::size_t i = 0; i < f.lstCompos.size(); ++i) {
        f.lstComposIndice = static_cast<int>(i);
        lstCompos_Click(f, s);
        celdas += ComparaAbaco(f, f.lstCompos[i], 5);
    }
    EXPECT_EQ(celdas, renglones.size());
}

TEST_F(SerieDeMuestra, ElAbacoTieneLaEscorrentiaYElCoeficienteDelArchivo)
{
    dlgChart3 f;
    Abre(f, s);
    for (const int magnitud : {1, 2}) {
        f.lstPQECIndice = magnitud;
        lstPQEC_Click(f, s);
        ASSERT_EQ(f.lstCompos.size(), static_cast<std::size_t>(s.Red.NroUEHs()));
        for (std::size_t i = 0; i < f.lstCompos.size(); ++i) {
            f.lstComposIndice = static_cast<int>(i);
            lstCompos_Click(f, s);
            ComparaAbaco(f, f.lstCompos[i], 5 + static_cast<std::size_t>(magnitud));
        }
    }
}

TEST_F(SerieDeMuestra, CadaMarcaEsElMayorCaudalDeSuRecurrencia)
{
    dlgChart3 f;
    Abre(f, s);
    const std::string componente = f.lstCompos.at(static_cast<std::size_t>(f.lstComposIndice));
    ASSERT_EQ(f.Grafico.marcas.size(), f.Grafico.series.size());
    for (const forms::Marca& marca : f.Grafico.marcas) {
        const std::string& R = f.Grafico.series[marca.serie].leyenda;
        float mayor = 0;
        std::string duracion;
        for (const Campos& r : RenglonesDe(componente))
            if (r[4] == R && std::stof(r[5]) > mayor) {
                mayor = std::stof(r[5]);
                duracion = r[3];
            }
        EXPECT_EQ(marca.rotulo, "D= " + duracion + " min") << R;
    }
}

TEST_F(SerieDeMuestra, UnTildeQueSeQuitaSeNotaAlVolver)
{
    dlgTablaSalePDR f;
    Abre(f, s);
    s.frmConfigura.CheckD[5] = 0;  // 60 min
    cmdAplicarCambios(f, s);
    std::vector<Campos> quedan;
    for (const Campos& r : renglones)
        if (r[3] != "60") quedan.push_back(r);
    ASSERT_LT(quedan.size(), renglones.size());
    EXPECT_EQ(Registros(f.MSFlexGridTablaSaleQDR), quedan);
    s.frmConfigura.CheckD[5] = 1;
    cmdAplicarCambios(f, s);
    EXPECT_EQ(Registros(f.MSFlexGridTablaSaleQDR), renglones);
}

}  // namespace
}  // namespace results
