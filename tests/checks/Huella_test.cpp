// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/Huella.h"

#include <gtest/gtest.h>

#include <string>

#include "checks/CorridaDePrueba.h"
#include "checks/Sha256.h"

namespace checks {
namespace {

std::string Sha(std::string_view bytes)
{
    Sha256 sha;
    sha.Agrega(bytes);
    return sha.Cierra();
}

// NIST, Cryptographic Standards and Guidelines, examples with intermediate values, SHA-256; the last is that
// of FIPS 180-2, appendix B.3.
TEST(Sha256, TieneLosValoresPublicados)
{
    EXPECT_EQ(Sha(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(Sha("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(Sha("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
              "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
    EXPECT_EQ(Sha(std::string(1000000, 'a')),
              "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

TEST(Sha256, NoDependeDeLosTrozos)
{
    const std::string bytes(200, 'x');
    for (std::size_t n = 0; n <= bytes.size(); ++n) {
        Sha256 sha;
        sha.Agrega(std::string_view(bytes).substr(0, n));
        sha.Agrega(std::string_view(bytes).substr(n));
        ASSERT_EQ(sha.Cierra(), Sha(bytes)) << n;
    }
}

class LaHuella : public testing::Test, public pruebas::CorridaDePrueba {
  protected:
    LaHuella() { Represa("Piscina Nivelada", Prisma(10, 5, 20)); }
    std::string Huella()
    {
        const engine::Calculo c = Corre();
        return HuellaDeCorrida(s.Red, s.Tormenta, s.Pasos, s.TablasDeLluvia, c.Resultados);
    }
};

TEST_F(LaHuella, EsLaMismaParaLaMismaCorrida)
{
    const std::string antes = Huella();
    EXPECT_EQ(antes.size(), 64U);
    s.Red.ColUEHs.Item(1).IconoUEHx = 123;  // what no run reads
    s.Red.ColUEHs.Item(1).Referencia = "nota";
    s.Red.ColCauces.Item(1).OrdenCauce = 3;
    s.Red.ColUEHs.Item(1).RetensionZ = -0.0F;
    s.Tormenta.RecTormenta = 50;
    s.Tormenta.FormaPp = model::FormaLluvia::DeLista;
    EXPECT_EQ(Huella(), antes);
}

TEST_F(LaHuella, CambiaConCadaDato)
{
    using Cambio = void (*)(model::Siro&);
    const Cambio cambios[] = {
        [](model::Siro& x) { x.Red.ColUEHs.Item(1).Area = 100.00001F; },
        [](model::Siro& x) { x.Red.ColUEHs.Item(1).NombreUEH = "u-9"; },
        [](model::Siro& x) { x.Red.ColUEHs.Item(1).KostiakovI = 1; },
        [](model::Siro& x) { x.Red.ColCauces.Item(1).Cauce_n_Musk = 0.1F; },
        [](model::Siro& x) { x.Red.ColRepresas.Item(1).HInicialEmb = 101; },
        [](model::Siro& x) { x.Tormenta.PpTormenta = 61; },
        [](model::Siro& x) { x.Tormenta.DistriPp = 1; },
        [](model::Siro& x) { x.Pasos.N0Dur = 130; },
    };
    const model::Red red = s.Red;
    const model::Tormenta tormenta = s.Tormenta;
    const model::Pasos pasos = s.Pasos;
    std::vector<std::string> huellas{Huella()};
    for (const Cambio cambia : cambios) {
        s.Red = red, s.Tormenta = tormenta, s.Pasos = pasos;
        cambia(s);
        huellas.push_back(Huella());
    }
    std::sort(huellas.begin(), huellas.end());
    EXPECT_EQ(std::adjacent_find(huellas.begin(), huellas.end()), huellas.end());
}

TEST_F(LaHuella, CambiaConUnBitDeUnResultadoOUnaFilaDeTabla)
{
    engine::Calculo c = Corre();
    const auto huella = [&] {
        return HuellaDeCorrida(s.Red, s.Tormenta, s.Pasos, s.TablasDeLluvia, c.Resultados);
    };
    const std::string antes = huella();
    float& q = c.Resultados.QSale(3, 7);
    const float eraQ = std::exchange(q, std::nextafter(q, 1e9F));
    EXPECT_NE(huella(), antes);
    q = eraQ;
    EXPECT_EQ(huella(), antes);
    s.Red.RepresaS(1, 20) += 1;
    EXPECT_NE(huella(), antes);
}

}  // namespace
}  // namespace checks
