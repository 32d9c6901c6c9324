// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <map>
#include <mutex>
#include <random>
#include <string>
#include <vector>

#include "apoyo/Compara.h"
#include "engine/RedDeUEHs.h"
#include "engine/mdlSeriePDR.h"
#include "model/ArchivoConf.h"
#include "model/TablasEmbalse.h"

// A series gives the same bytes, boxes and state whatever the number of threads: over random projects with
// recurrences and durations selected at random, some with storms that show boxes or ask questions.
namespace engine {
namespace {

class SerieAlAzar : public pruebas::RedDeUEHs {
  public:
    explicit SerieAlAzar(unsigned semilla) : azar(semilla)
    {
        s.Tormenta.FormaPp = 2;
        s.Pasos.PasoQ = Uno<std::int16_t>({5, 10});
        s.Pasos.PasoPp = static_cast<std::int16_t>(s.Pasos.PasoQ * Entero(1, 3));
        s.Tormenta.DistriPp = static_cast<std::int16_t>(Entero(0, 4));
        s.Pasos.N0Dur = static_cast<float>(Entero(0, 300));
        const int cauces = Entero(1, 6);
        for (int i = 1; i <= cauces; ++i)
            PonTramo(i);
        for (int i = 1; i <= cauces; ++i)
            PonUnidad("c-" + std::to_string(i));
        if (Entero(0, 1) == 1) PonLaguna();
        Guarda();
        PonSerie(Entero(2, 30));
    }

  private:
    int Entero(int a, int b) { return std::uniform_int_distribution<int>(a, b)(azar); }
    float Real(float a, float b) { return std::uniform_real_distribution<float>(a, b)(azar); }
    template <typename T>
    T Uno(const std::vector<T>& de)
    {
        return de[static_cast<std::size_t>(Entero(0, static_cast<int>(de.size()) - 1))];
    }
    void PonTramo(int i)
    {
        model::Cauce& c =
            PonCauce("c-" + std::to_string(i), i == 1 ? "0" : "c-" + std::to_string(Entero(1, i - 1)));
        c.LongCauce = Real(100, 9000);
        c.optDirMusk = Entero(0, 2) > 0;
        c.Cauce_k_Musk = static_cast<float>(Entero(5, 60));  // now and then the sum misses 1: a box a storm
        c.Cauce_n_Musk = 0.2F;
    }
    void PonUnidad(const std::string& destino)
    {
        model::UEH& u = PonUEH("u-" + std::to_string(s.Red.ColUEHs.Cuenta() + 1), destino);
        u.Area = Real(1, 300);
        u.LongitudMax = Real(50, 6000);
        u.KostiakovA = Real(0, 3);
        u.KostiakovB = 0.5F;
        u.RetensionZ = Real(0, 5);
        u.Q0Recesion = Entero(0, 1) == 1 ? Real(0, 1) : 0;
        u.KRecesion = 3;
    }
    /// A lake too low for large storms now and then: a question at each height that leaves its table.
    void PonLaguna()
    {
        s.Red.ColLagos.Agrega({.NombreLAGO = "l-1",
                               .numLAGO = 1,
                               .Metodo = Uno<std::string>({"Piscina Nivelada", "Runge Kutta", "Muskingum"}),
                               .Cauce_aa = "c-1",
                               .Lago_k_Musk = 20,
                               .HInicialEmb = 100});
        PonUnidad("l-1");
        const int filas = Entero(3, 12);
        s.Red.LagoFilas.Dimensiona(1);
        s.Red.LagoFilas(1) = static_cast<std::int16_t>(filas);
        for (auto* m : {&s.Red.LagoH, &s.Red.LagoA, &s.Red.LagoQ})
            m->Dimensiona(1, 20);
        s.Red.LagoS.Dimensiona(1, 20);
        for (int k = 1; k <= filas; ++k) {
            const auto d = static_cast<float>(k - 1);
            s.Red.LagoH(1, k) = 100 + d;
            s.Red.LagoA(1, k) = 10;
            s.Red.LagoS(1, k) = (k - 1) * 100000;
            s.Red.LagoQ(1, k) = 4 * d;
        }
        model::GuardaTablaHSVQLago(s);
    }
    void Guarda()
    {
        GuardaProyecto();
        for (auto& marca : s.frmConfigura.CheckR)
            marca = static_cast<std::int16_t>(Entero(0, 3) > 0);
        for (auto& marca : s.frmConfigura.CheckD)
            marca = static_cast<std::int16_t>(Entero(0, 3) > 0);
        model::cmdAplicar(s);
        anfitrion->sucesos.clear();
        anfitrion->respuestaDeSiempre = true;
    }
    void PonSerie(int n)
    {
        s.Serie.NroSeriePDR = static_cast<std::int16_t>(n);
        s.Serie.SerieP.Dimensiona(n);
        s.Serie.SerieD.Dimensiona(n);
        s.Serie.SerieR.Dimensiona(n);
        for (int i = 1; i <= n; ++i) {
            s.Serie.SerieP(i) = static_cast<float>(Entero(1, 200));
            s.Serie.SerieD(i) =
                Entero(0, 3) > 0
                    ? Uno(std::vector<std::int16_t>(model::Duraciones.begin(), model::Duraciones.end()))
                    : static_cast<std::int16_t>(Entero(1, 700));
            s.Serie.SerieR(i) =
                Entero(0, 5) > 0
                    ? Uno(std::vector<std::int16_t>(model::Recurrencias.begin(), model::Recurrencias.end()))
                    : static_cast<std::int16_t>(Entero(1, 300));
        }
        if (Entero(0, 9) == 0) s.Serie.SerieP(Entero(2, n)) = 0;  // stops the series there
    }
    std::mt19937 azar;
};

class HilosDeSerie : public testing::TestWithParam<unsigned> {};

TEST_P(HilosDeSerie, UnoYDosHilosDanLosMismosBytes)
{
    SerieAlAzar uno(GetParam()), dos(GetParam());
    std::mutex candado;
    std::map<int, model::Resultados> vistas;
    const auto mira = [&](int numero, const Calculo* calculo) {
        const std::scoped_lock aLaVez(candado);
        if (calculo == nullptr)
            vistas.erase(numero);
        else
            EXPECT_TRUE(vistas.emplace(numero, calculo->Resultados).second) << numero;
    };
    EXPECT_EQ(CorreSeriePDR(uno.s, 1), CorreSeriePDR(dos.s, 2, mira));
    const std::string tabla = "/trabajo/SaleTablasQDRs_tem.txt";
    ASSERT_EQ(uno.disco.Esta(tabla), dos.disco.Esta(tabla));
    if (uno.disco.Esta(tabla)) {
        EXPECT_TRUE(apoyo::MismoTexto(uno.disco.Bytes(tabla), dos.disco.Bytes(tabla)));
    }
    EXPECT_EQ(uno.anfitrion->sucesos, dos.anfitrion->sucesos);
    EXPECT_EQ(uno.s.Resultados.QMax, dos.s.Resultados.QMax);
    EXPECT_EQ(uno.s.Resultados.EscUEH, dos.s.Resultados.EscUEH);
    EXPECT_EQ(uno.s.Resultados.CoefEscUEH, dos.s.Resultados.CoefEscUEH);
    EXPECT_EQ(uno.s.Resultados.EscTotal, dos.s.Resultados.EscTotal);
    EXPECT_EQ(uno.s.Resultados.CoefEscTotal, dos.s.Resultados.CoefEscTotal);
    EXPECT_EQ(uno.s.Resultados.QSale, dos.s.Resultados.QSale);
    EXPECT_EQ(uno.s.Resultados.HLago, dos.s.Resultados.HLago);
    EXPECT_EQ(uno.s.Hietograma.PpAcum, dos.s.Hietograma.PpAcum);
    EXPECT_EQ(uno.s.Hietograma.IntensidadPp, dos.s.Hietograma.IntensidadPp);
    EXPECT_EQ(uno.s.Resultados.VolEntra, dos.s.Resultados.VolEntra);
    EXPECT_EQ(uno.s.Resultados.VolSale, dos.s.Resultados.VolSale);
    EXPECT_EQ(uno.s.Serie.IndSerie, dos.s.Serie.IndSerie);
    EXPECT_TRUE(apoyo::MismoTexto(uno.s.Control.TextoPizarra, dos.s.Control.TextoPizarra));
    // What was seen of a storm is what the series keeps of it.
    for (const auto& [numero, vista] : vistas) {
        model::Resultados r = dos.s.Resultados;
        r.TraeTormenta(vista, 1, numero);
        EXPECT_EQ(r.QMax, dos.s.Resultados.QMax) << numero;
        EXPECT_EQ(r.EscUEH, dos.s.Resultados.EscUEH) << numero;
        EXPECT_EQ(r.CoefEscTotal, dos.s.Resultados.CoefEscTotal) << numero;
    }
}

INSTANTIATE_TEST_SUITE_P(Proyectos, HilosDeSerie, testing::Range(1U, 201U));

}  // namespace
}  // namespace engine
