// SPDX-License-Identifier: GPL-3.0-or-later
//
// The real siro-memoria on the delivered sample, without a display.

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <filesystem>
#include <string>

#include "apoyo/Compara.h"
#include "apoyo/Ventanas.h"

namespace {

class SiroMemoria : public testing::Test {
  protected:
    void SetUp() override
    {
        std::filesystem::copy(SIRO_DATA_DIR, dir.Camino(), std::filesystem::copy_options::recursive);
    }
    struct Fin {
        int estado = -1;
        std::string salida{}, errores{};
    };
    /// Runs it in the sample's folder.
    Fin Corre(const QStringList& palabras, const QString& programa = QStringLiteral(SIRO_MEMORIA)) const
    {
        QProcess proceso;
        QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
        for (const char* sobra : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_RUNTIME_DIR"})
            ambiente.remove(QLatin1String(sobra));
        ambiente.insert(QStringLiteral("XDG_DATA_HOME"), QString::fromStdString(dir.Ruta("usuario")));
        proceso.setProcessEnvironment(ambiente);
        proceso.setWorkingDirectory(QString::fromStdString(dir.Ruta("Proyectos")));
        proceso.start(programa, palabras);
        EXPECT_TRUE(proceso.waitForFinished(60000));
        return {proceso.exitStatus() == QProcess::NormalExit ? proceso.exitCode() : -1,
                proceso.readAllStandardOutput().toStdString(), proceso.readAllStandardError().toStdString()};
    }
    /// The words of a call that makes a short memoria.
    [[nodiscard]] QStringList Corta(const QString& formato, const QString& archivo) const
    {
        return {QStringLiteral("Quelmar_Conf.vlm"),
                QStringLiteral("--trabajo"),
                QStringLiteral(".."),
                formato,
                archivo,
                QStringLiteral("--capitulos"),
                QStringLiteral("objeto,resultados")};
    }
    [[nodiscard]] std::string Archivo(const char* nombre) const
    {
        return apoyo::BytesDeArchivo(dir.Ruta(std::string("Proyectos/") + nombre));
    }

    apoyo::CarpetaTemporal dir{};
};

TEST_F(SiroMemoria, HaceLosTresFormatosSinPantallaYNoCambiaElProyecto)
{
    const std::string antes = Archivo("Quelmar_Conf.vlm");
    for (const auto& [formato, nombre, comienzo] : {std::tuple{"--pdf", "á ñ 'm'.pdf", "%PDF"},
                                                    {"--odt", "m.odt", "PK"},
                                                    {"--html", "m.html", "<!DOCTYPE html>"}}) {
        const Fin fin = Corre(Corta(QString::fromUtf8(formato), QString::fromUtf8(nombre)));
        EXPECT_EQ(fin.estado, 0) << fin.errores;
        EXPECT_EQ(fin.errores, "");
        EXPECT_EQ(fin.salida, "");
        EXPECT_TRUE(Archivo(nombre).starts_with(comienzo)) << nombre;
    }
    EXPECT_EQ(Archivo("Quelmar_Conf.vlm"), antes);
    EXPECT_FALSE(std::filesystem::exists(dir.Ruta("SalePizarra1_tem.txt")));
}

TEST_F(SiroMemoria, LaSerieYLosComponentesElegidos)
{
    QStringList palabras = Corta(QStringLiteral("--html"), QStringLiteral("m.html"));
    palabras.last() = QStringLiteral("resultados,serie");
    palabras << QStringLiteral("--serie") << QStringLiteral("--tabla=1") << QStringLiteral("--componentes")
             << QString::fromUtf8("r-Calfún") << QStringLiteral("--decimal") << QStringLiteral("punto");
    const Fin fin = Corre(palabras);
    ASSERT_EQ(fin.estado, 0) << fin.errores;
    const std::string html = Archivo("m.html");
    EXPECT_NE(html.find("Hidrograma de r-Calfún"), std::string::npos);
    EXPECT_EQ(html.find("Hidrograma de r-Quelmar"), std::string::npos);
    EXPECT_NE(html.find("Caudal máximo de r-Calfún"), std::string::npos);
    EXPECT_EQ(html.find("Verificación del programa"), std::string::npos);
}

TEST_F(SiroMemoria, UnaOrdenErroneaDiceElMotivoYElUso)
{
    const auto niega = [&](QStringList palabras, const char* motivo) {
        const Fin fin = Corre(palabras);
        EXPECT_EQ(fin.estado, 2) << motivo;
        EXPECT_TRUE(fin.errores.starts_with(std::string("siro-memoria: ") + motivo)) << fin.errores;
        EXPECT_NE(fin.errores.find("Uso: siro-memoria"), std::string::npos);
    };
    const QString conf = QStringLiteral("Quelmar_Conf.vlm"), pdf = QStringLiteral("--pdf"),
                  m = QStringLiteral("m.pdf");
    niega({conf}, "Falta el formato");
    niega({conf, pdf}, "La opción --pdf lleva un valor");
    niega({conf, pdf, m, QStringLiteral("--odt"), m}, "--odt: el formato va una sola vez");
    niega({pdf, m}, "Falta CONF");
    niega({conf, pdf, m, QStringLiteral("--papel"), QStringLiteral("A3")}, "--papel: es A4 o Carta");
    niega({conf, pdf, m, QStringLiteral("--pp"), QStringLiteral("x")}, "--pp: ");
    niega({conf, pdf, m, QStringLiteral("--pizarra")}, "No se esperaba --pizarra");
    niega({conf, pdf, m, QStringLiteral("--sin-tormenta")}, "--sin-tormenta va con --serie");
    const Fin ayuda = Corre({QStringLiteral("--ayuda")});
    EXPECT_EQ(ayuda.estado, 0);
    EXPECT_TRUE(ayuda.salida.starts_with("Uso: siro-memoria"));
    QStringList palabras = Corta(pdf, m);
    palabras.last() = QStringLiteral("nada");
    const Fin capitulo = Corre(palabras);
    EXPECT_EQ(capitulo.estado, 2);
    EXPECT_NE(capitulo.errores.find("no tiene un capítulo nada; tiene objeto, "), std::string::npos)
        << capitulo.errores;
}

TEST_F(SiroMemoria, LoQueNoPuedeLeerOEscribirLoDiceYDejaElArchivo)
{
    const auto niega = [&](const QStringList& palabras, const char* motivo) {
        const Fin fin = Corre(palabras);
        EXPECT_EQ(fin.estado, 1) << motivo;
        EXPECT_NE(fin.errores.find(motivo), std::string::npos) << fin.errores;
    };
    niega(Corta(QStringLiteral("--pdf"), QStringLiteral("no/hay/m.pdf")), "no se puede escribir ");
    std::filesystem::create_directory(dir.Ruta("Proyectos/m.pdf"));
    niega(Corta(QStringLiteral("--pdf"), QStringLiteral("m.pdf")), "no se puede escribir ");
    QStringList palabras = Corta(QStringLiteral("--pdf"), QStringLiteral("n.pdf"));
    niega(palabras + QStringList{QStringLiteral("--logo"), QStringLiteral("Quelmar_Conf.vlm")},
          "no es una imagen");
    niega(palabras + QStringList{QStringLiteral("--plantilla"), QStringLiteral("no.txt")},
          "no se puede leer ");
    niega(palabras + QStringList{QStringLiteral("--componentes"), QStringLiteral("c-Nada")},
          "no tiene un hidrograma de c-Nada");
    niega(palabras + QStringList{QStringLiteral("--dur"), QStringLiteral("0")},
          "la corrida no llegó a su fin");
    palabras.first() = QStringLiteral("Otro_Conf.vlm");
    niega(palabras, "no se puede abrir ");
    EXPECT_FALSE(std::filesystem::exists(dir.Ruta("Proyectos/n.pdf")));
}

TEST_F(SiroMemoria, UnDiscoSinLugarDejaLaMemoriaDeAntes)
{
    QFile vieja(QString::fromStdString(dir.Ruta("Proyectos/m.pdf")));
    ASSERT_TRUE(vieja.open(QIODevice::WriteOnly));
    vieja.write("la de antes");
    vieja.close();
    // No file may grow beyond 8 blocks.
    const QString orden = QStringLiteral("trap '' XFSZ; ulimit -f 8; exec \"$0\" \"$@\"");
    const Fin fin = Corre(QStringList{QStringLiteral("-c"), orden, QStringLiteral(SIRO_MEMORIA)} +
                              Corta(QStringLiteral("--pdf"), QStringLiteral("m.pdf")),
                          QStringLiteral("sh"));
    EXPECT_EQ(fin.estado, 1);
    EXPECT_NE(fin.errores.find("no se puede escribir "), std::string::npos) << fin.errores;
    EXPECT_EQ(Archivo("m.pdf"), "la de antes");
}

TEST_F(SiroMemoria, LasFaltasDeLaPlantillaSeDicenConSuRenglonYLaMemoriaSeHace)
{
    QFile plantilla(QString::fromStdString(dir.Ruta("Proyectos/p.txt")));
    ASSERT_TRUE(plantilla.open(QIODevice::WriteOnly));
    plantilla.write("# Uno {uno}\n\nVale {{proyecto}}.\n\n[[tabla inventada]]\n");
    plantilla.close();
    const Fin fin = Corre({QStringLiteral("Quelmar_Conf.vlm"), QStringLiteral("--trabajo"),
                           QStringLiteral(".."), QStringLiteral("--html"), QStringLiteral("m.html"),
                           QStringLiteral("--plantilla"), QStringLiteral("p.txt")});
    EXPECT_EQ(fin.estado, 0);
    EXPECT_NE(fin.errores.find("siro-memoria: plantilla, renglón 5: "), std::string::npos) << fin.errores;
    EXPECT_NE(Archivo("m.html").find("Crecidas del arroyo Quelmar"), std::string::npos);
}

TEST_F(SiroMemoria, MuertaEnCualquierMomentoDejaLaVieja)
{
    int muertes = 0;
    for (int n = 0; n < 12; ++n) {
        QFile vieja(QString::fromStdString(dir.Ruta("Proyectos/m.pdf")));
        ASSERT_TRUE(vieja.open(QIODevice::WriteOnly | QIODevice::Truncate));
        vieja.write("la de antes");
        vieja.close();
        QProcess proceso;
        proceso.setWorkingDirectory(QString::fromStdString(dir.Ruta("Proyectos")));
        proceso.start(QStringLiteral(SIRO_MEMORIA), Corta(QStringLiteral("--pdf"), QStringLiteral("m.pdf")));
        if (!proceso.waitForFinished(60 * n)) {
            proceso.kill();
            proceso.waitForFinished();
            ++muertes;
        }
        const std::string queda = Archivo("m.pdf");
        EXPECT_TRUE(queda == "la de antes" || (queda.starts_with("%PDF") && queda.ends_with("%%EOF\n"))) << n;
    }
    EXPECT_GE(muertes, 1);
}

}  // namespace
