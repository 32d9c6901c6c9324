// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/Calcula.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "engine/FormulasUEH.h"
#include "engine/RedDeUEHs.h"
#include "engine/modProceso0.h"
#include "model/ArchivosTormenta.h"
#include "model/TablasEmbalse.h"

namespace engine {
namespace {

/// Six UEHs into reaches of both kinds and, where it is wanted, a Lago, on the disk as well.
class ElCalculo : public testing::Test, public pruebas::RedDeUEHs {
  protected:
    ElCalculo()
    {
        for (int i = 1; i <= 6; ++i) {
            model::UEH& u = PonUEH("u-" + std::to_string(i), "c-" + std::to_string((i + 1) / 2));
            const auto x = static_cast<float>(i);
            u.Area = 13.7F * x;
            u.LongitudMax = 700 * x;
            u.KostiakovA = 1.7F;
            u.KostiakovB = 0.45F;
            u.KostiakovI = 3 * x;
            u.RetensionZ = x - 2;
            u.Q0Recesion = 0.1F * x;
            u.KRecesion = 2.5F;
        }
        PonCauce("c-1", "c-2");
        PonCauce("c-2", "c-3").optDirMusk = false;
        s.Red.Cauces(2).Cauce_k_Musk = 12;
        s.Red.Cauces(2).Cauce_n_Musk = 0.25F;
        PonCauce("c-3", "0");
        s.Pasos.PasoQ = 5;
        s.Tormenta.DurTormenta = 55;
        s.Tormenta.DistriPp = 2;
        anfitrion->respuestaDeSiempre = true;
    }
    /// A Lago between c-1 and c-2 with a table up to a height above 100 m.
    void PonLago(float altura, const std::string& metodo)
    {
        s.Red.ColLagos.Agrega({.NombreLAGO = "l-1",
                               .numLAGO = 1,
                               .Metodo = metodo,
                               .Cauce_aa = "c-2",
                               .Lago_k_Musk = 20,
                               .HInicialEmb = 100});
        s.Red.Cauces(1).Cauce_aa = "l-1";
        s.Red.LagoFilas.Dimensiona(1);
        s.Red.LagoFilas(1) = 2;
        for (auto* m : {&s.Red.LagoH, &s.Red.LagoA, &s.Red.LagoQ})
            m->Dimensiona(1, 3);
        s.Red.LagoS.Dimensiona(1, 3);
        s.Red.LagoH(1, 1) = 100;
        s.Red.LagoH(1, 2) = 100 + altura;
        s.Red.LagoA(1, 1) = s.Red.LagoA(1, 2) = 1;
        s.Red.LagoS(1, 2) = 10000;
        s.Red.LagoQ(1, 2) = 5;
    }
    void Guarda()
    {
        GuardaProyecto();
        model::GuardaTablaHSVQLago(s);
        anfitrion->sucesos.clear();
    }
    /// The storm in hand once by the driver, and with the network that it read as a function.
    void ComparaConUnaCorrida()
    {
        Guarda();
        const model::Tormenta tormenta = s.Tormenta;
        ASSERT_TRUE(CorreUnaTormenta(s));
        calculo = Calcula(s.Red, tormenta, s.Pasos, s.TablasDeLluvia);
        EXPECT_EQ(calculo.fin, FinCalculo::Completo);
        EsperaLosMismosBits(calculo, s.Resultados);
        EXPECT_EQ(calculo.Tormenta.PpUEH, s.Tormenta.PpUEH);
        EXPECT_EQ(calculo.Tormenta.PpReal, s.Tormenta.PpReal);
        EXPECT_EQ(calculo.Hietograma.IntensidadPp, s.Hietograma.IntensidadPp);
    }
    static void EsperaLosMismosBits(const Calculo& c, const model::Resultados& r)
    {
        EXPECT_GT(r.QMax(r.NroComponentes, 1), 0);
        EXPECT_EQ(c.Resultados.Secuencia, r.Secuencia);
        EXPECT_EQ(c.Resultados.Salidas, r.Salidas);
        EXPECT_EQ(c.Resultados.NroPasosQ, r.NroPasosQ);
        EXPECT_EQ(c.Resultados.QSale, r.QSale);
        EXPECT_EQ(c.Resultados.QEntra, r.QEntra);
        EXPECT_EQ(c.Resultados.QMax, r.QMax);
        EXPECT_EQ(c.Resultados.HLago, r.HLago);
        EXPECT_EQ(c.Resultados.SLago, r.SLago);
        EXPECT_EQ(c.Resultados.VolUEH, r.VolUEH);
        EXPECT_EQ(c.Resultados.VolBaseUEH, r.VolBaseUEH);
        EXPECT_EQ(c.Resultados.EscUEH, r.EscUEH);
        EXPECT_EQ(c.Resultados.CoefEscTotal, r.CoefEscTotal);
        EXPECT_EQ(c.Resultados.VolEntra, r.VolEntra);
        EXPECT_EQ(c.Resultados.VolSale, r.VolSale);
    }
    Calculo calculo{};
};

TEST_F(ElCalculo, TieneLosBitsDeUnaCorrida)
{
    ComparaConUnaCorrida();
    EXPECT_TRUE(calculo.avisos.empty());
}

TEST_F(ElCalculo, ConUnLagoTambien)
{
    for (const char* metodo : {"Piscina Nivelada", "Runge Kutta", "Muskingum"}) {
        s.Red.ColLagos.Vacia();
        PonLago(20, metodo);
        ComparaConUnaCorrida();
        EXPECT_TRUE(calculo.avisos.empty()) << metodo;
        EXPECT_GT(s.Resultados.SLago(1, 5), 0) << metodo;
    }
}

TEST_F(ElCalculo, ConUnaTormentaPorUEHTambien)
{
    s.Tormenta.FormaPp = static_cast<std::int16_t>(model::FormaLluvia::PorUEH);
    s.Tormenta.DistriPp = 0;
    for (int i = 1; i <= 6; ++i)
        s.Tormenta.PpUEH(i) = 20.5F * static_cast<float>(i);
    ComparaConUnaCorrida();
}

TEST_F(ElCalculo, UnaTormentaDeSerieValeComoEscrita)
{
    const Calculo escrita = Calcula(s.Red, s.Tormenta, s.Pasos);
    s.Tormenta.FormaPp = static_cast<std::int16_t>(model::FormaLluvia::SeriePDR);
    EsperaLosMismosBits(Calcula(s.Red, s.Tormenta, s.Pasos), escrita.Resultados);
}

// A third of the rain in each of three blocks, read from the file by the driver and handed to the function.
TEST_F(ElCalculo, LaDistribucionPersonalVaConLaTormenta)
{
    s.TablasDeLluvia.NroFilasTabla = {0, 3, 0, 0};
    s.TablasDeLluvia.DisPerso.Dimensiona(3, 4);
    for (int j = 1; j <= 3; ++j)
        s.TablasDeLluvia.DisPerso(1, j) = 100 / 3.0F;
    ASSERT_TRUE(model::GuardaTablaDisPer(s));
    s.Tormenta.DistriPp = 5;
    ComparaConUnaCorrida();
    EXPECT_EQ(calculo.Hietograma.NroBloquesPp, 3);
}

TEST_F(ElCalculo, DesdeVariosHilosALaVezDaLoMismo)
{
    PonLago(20, "Piscina Nivelada");
    constexpr std::size_t Cuantos = 24;
    std::vector<model::Tormenta> tormentas(Cuantos, s.Tormenta);
    for (std::size_t i = 0; i < Cuantos; ++i)
        tormentas[i].PpTormenta = 30 + 5 * static_cast<float>(i);
    std::vector<Calculo> juntos(Cuantos);
    {
        std::vector<std::jthread> hilos;
        for (std::size_t h = 0; h < 4; ++h)
            hilos.emplace_back([&, h] {
                Memoria memoria{.VariasCorridas = true};
                for (std::size_t i = h; i < Cuantos; i += 4)
                    juntos[i] = Calcula(s.Red, tormentas[i], s.Pasos, {}, memoria);
            });
    }
    for (std::size_t i = 0; i < Cuantos; ++i)
        EsperaLosMismosBits(juntos[i], Calcula(s.Red, tormentas[i], s.Pasos).Resultados);
}

TEST_F(ElCalculo, LaMemoriaPuedeVerOtraRed)
{
    Memoria memoria{.VariasCorridas = true};
    for (const float area : {40.0F, 90.0F}) {
        s.Red.UEHs(1).Area = s.Red.UEHs(1).KostiakovI = area;
        for (int vez = 0; vez < 2; ++vez)
            EsperaLosMismosBits(Calcula(s.Red, s.Tormenta, s.Pasos, {}, memoria),
                                Calcula(s.Red, s.Tormenta, s.Pasos).Resultados);
    }
}

// A lake of 10 cm asks in a large storm, in the midst of small ones that don't.
TEST_F(ElCalculo, LaCalculadoraDaLosBitsDeLaFuncionTormentaPorTormenta)
{
    PonLago(0.1F, "Runge Kutta");
    Calculadora calculadora(s.Red, s.Pasos, {.VariasCorridas = true});
    std::vector<std::size_t> preguntas;
    for (const float lamina : {0.5F, 60.0F, 0.7F}) {
        s.Tormenta.PpTormenta = lamina;
        const Calculo una = Calcula(s.Red, s.Tormenta, s.Pasos);
        model::Hietograma hietograma = una.Hietograma;
        hietograma.PpAcumPrevia = 0;
        const Calculo& otra = calculadora.Corre(s.Tormenta, hietograma);
        EXPECT_EQ(otra.fin, una.fin);
        EXPECT_EQ(otra.Resultados.QSale, una.Resultados.QSale) << lamina;
        EXPECT_EQ(otra.Resultados.QMax, una.Resultados.QMax) << lamina;
        EXPECT_EQ(otra.Resultados.SLago, una.Resultados.SLago) << lamina;
        EXPECT_EQ(otra.Resultados.EscUEH, una.Resultados.EscUEH) << lamina;
        ASSERT_EQ(otra.avisos.size(), una.avisos.size()) << lamina;
        for (std::size_t i = 0; i < una.avisos.size(); ++i)
            EXPECT_EQ(otra.avisos[i].veces, una.avisos[i].veces) << lamina;
        preguntas.push_back(una.avisos.size());
    }
    EXPECT_EQ(preguntas[0], 0U);
    EXPECT_GT(preguntas[1], 0U);
    EXPECT_EQ(preguntas[2], 0U);
}

// What a run finds of the one before: two blocks more of the hyetograph, and its answers.
TEST_F(ElCalculo, NadaQuedaDeUnoParaOtro)
{
    const Calculo primero = Calcula(s.Red, s.Tormenta, s.Pasos);
    model::Tormenta larga = s.Tormenta;
    larga.DurTormenta = 1440;
    larga.DistriPp = 1;
    (void)Calcula(s.Red, larga, s.Pasos);
    const Calculo segundo = Calcula(s.Red, s.Tormenta, s.Pasos);
    EsperaLosMismosBits(segundo, primero.Resultados);
    EXPECT_EQ(segundo.Hietograma.PpAcum, primero.Hietograma.PpAcum);
}

// A lake of 10 cm: each height above its table asks, and Yes goes on with 0.
TEST_F(ElCalculo, UnaPreguntaCuentaComoSiYQuedaAnotada)
{
    PonLago(0.1F, "Runge Kutta");
    ComparaConUnaCorrida();
    std::size_t preguntas = 0;
    for (const AvisoDeCalculo& aviso : calculo.avisos) {
        EXPECT_TRUE(aviso.esPregunta) << aviso.mensaje.texto;
        preguntas += static_cast<std::size_t>(aviso.veces);
    }
    EXPECT_GT(preguntas, calculo.avisos.size());
    EXPECT_EQ(preguntas, anfitrion->Preguntas().size());
    EXPECT_EQ(calculo.avisos.front().mensaje, anfitrion->Preguntas().front());
}

TEST_F(ElCalculo, UnCicloSeRechaza)
{
    s.Red.Cauces(3).Cauce_aa = "c-1";
    calculo = Calcula(s.Red, s.Tormenta, s.Pasos);
    EXPECT_EQ(calculo.fin, FinCalculo::Rechazado);
    ASSERT_EQ(calculo.avisos.size(), 2U);  // no outfall, and so the refusal
    EXPECT_TRUE(calculo.avisos[0].esPregunta);
    EXPECT_EQ(calculo.avisos[1].mensaje.texto,
              "Error en la carga de datos de UEHS. Revise desde Menú Principal: Entradas\\Editor de UEHS...");

    // beside an outfall the validation doesn't see it
    PonUEH("u-7", "");
    PonCauce("c-4", "0");
    s.Red.UEHs(7).Cauce_aa = "c-4";
    calculo = Calcula(s.Red, s.Tormenta, s.Pasos);
    EXPECT_EQ(calculo.fin, FinCalculo::Rechazado);
    EXPECT_EQ(calculo.avisos.size(), 1U);
}

TEST_F(ElCalculo, SinUEHsSeRechaza)
{
    calculo = Calcula({}, s.Tormenta, s.Pasos);
    EXPECT_EQ(calculo.fin, FinCalculo::Rechazado);
    ASSERT_EQ(calculo.avisos.size(), 1U);
    EXPECT_EQ(calculo.avisos[0].mensaje.titulo, "Advertencia !");
}

// The powers of -5 in steps 1 and 2: a fault each, and the run goes on.
TEST_F(ElCalculo, UnaFallaQuedaAnotadaYLaCorridaSigue)
{
    s.Red.UEHs(1).RetensionZ = 0;
    s.Red.UEHs(1).KostiakovI = -15;
    s.Red.UEHs(1).KostiakovB = 0.5F;
    s.Tormenta.DistriPp = 0;
    ComparaConUnaCorrida();
    ASSERT_EQ(calculo.avisos.size(), 1U);
    EXPECT_EQ(calculo.avisos[0].mensaje.texto,
              "Error Nro. 5 ,Argumento o llamada a procedimiento no válidosVerifique");
    EXPECT_EQ(calculo.avisos[0].veces, 2);
    EXPECT_FALSE(calculo.avisos[0].esPregunta);
}

// 32-bit heights of a hundred million metres are 8 m apart: the bisection can't end.
TEST_F(ElCalculo, DondeElProgramaTerminaElCalculoTermina)
{
    PonLago(1e8F, "Muskingum");
    calculo = Calcula(s.Red, s.Tormenta, s.Pasos);
    EXPECT_EQ(calculo.fin, FinCalculo::Terminado);
    EXPECT_FALSE(calculo.avisos.empty());
    EXPECT_GT(calculo.Resultados.QMax(1, 1), 0);  // what was done stays
}

// Without rain the base flow alone is left, falling from its first step on.
TEST_F(ElCalculo, SinLaminaNoLlueve)
{
    s.Tormenta.PpTormenta = 0;
    calculo = Calcula(s.Red, s.Tormenta, s.Pasos);
    EXPECT_EQ(calculo.fin, FinCalculo::Completo);
    EXPECT_EQ(calculo.Tormenta.PpUEH(1), 0);
    EXPECT_NEAR(calculo.Resultados.QMax(6, 1), 0.6 * Abatimiento(2.5F, 5), 1e-6);
}

}  // namespace
}  // namespace engine
