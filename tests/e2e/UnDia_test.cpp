// SPDX-License-Identifier: GPL-3.0-or-later
//
// A day of work: from an empty project to a study that is finished, compared and put away, by keyboard
// wherever the program lets it. It is the study of the tutorial, with its data and its results. With
// SIRO_FOTOS naming a directory, the pictures of the tutorial are taken on the way and the work lies in
// SIRO_TALLER.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <regex>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "apoyo/Compara.h"
#include "e2e/EscritorioDePrueba.h"
#include "e2e/Programa.h"
#include "model/Componentes.h"
#include "model/Numeros.h"
#include "model/Siro.h"
#include "model/TablasEmbalse.h"
#include "model/Texto.h"

namespace {

namespace fs = std::filesystem;
using apoyo::BytesDeArchivo;
using apoyo::MismoTexto;
using e2e::Editor;
using e2e::Lote;
using e2e::Principal;
using e2e::Salida;
using e2e::SinHora;

constexpr const char* FormaUEH = "Propiedades de UHE (Unidad Hidrológica Elemental)";
constexpr const char* FormaCauce = "Propiedades de un tramo de Cauce";
constexpr const char* FormaRepresa = "Propiedades de Represas";
constexpr const char* TablaHAS = "Tabla Altura H[m]- Area A[has] - Almacenamiento S[m3], en Represa";
constexpr const char* Precipitaciones = "Carga de Datos de Precipitación";

/// A point of the drawing; it is 800 units wide and high whatever the window.
struct Lugar {
    double x = 0, y = 0;
};

// The Calfún on the map of the sample project: reaches from their mouths upwards.
const std::vector<Lugar> Bajo{{508, 53},  {500, 83},  {510, 116}, {486, 149}, {491, 181},
                              {468, 207}, {473, 237}, {447, 268}, {451, 297}};
const std::vector<Lugar> Alto{{375, 381}, {354, 396}, {339, 420}, {304, 435},
                              {282, 410}, {245, 396}, {205, 380}, {169, 379}};
constexpr Lugar Dique{418, 341}, Cabecera{262, 513}, Lateral{508, 318};

std::vector<std::string> Lineas(const std::string& texto)
{
    std::vector<std::string> lineas;
    std::istringstream entrada(texto);
    for (std::string linea; std::getline(entrada, linea);) {
        if (!linea.empty() && linea.back() == '\r') linea.pop_back();
        lineas.push_back(linea);
    }
    return lineas;
}

std::vector<std::string> Campos(const std::string& linea)
{
    std::vector<std::string> campos;
    std::istringstream entrada(linea + ',');
    for (std::string campo; std::getline(entrada, campo, ',');)
        campos.push_back(campo);
    return campos;
}

/// Largest number of a column, columns from 0, with two decimals; in the lines of a component where one is
/// named.
double Maximo(const std::string& csv, std::size_t columna, const std::string& componente = {})
{
    double mayor = -1;
    for (const std::string& linea : Lineas(csv)) {
        const std::vector<std::string> campos = Campos(linea);
        if (campos.size() > columna && (componente.empty() || campos[0] == componente))
            mayor = std::max(mayor, model::Val(campos[columna]));
    }
    return std::round(mayor * 100) / 100;
}

class UnDia : public e2e::EscritorioDePrueba {
  protected:
    void SetUp() override
    {
        if (const char* const lugar = std::getenv("SIRO_FOTOS")) fotos = lugar;
        if (const char* const taller = std::getenv("SIRO_TALLER")) raiz = taller;
        tamano = "1440x900x24";
        EscritorioDePrueba::SetUp();
        pantalla->Arranca(dir + "/siro");
        pantalla->EsperaVentana(Principal);
        pantalla->Mide(940, 700);
    }

    // --- hands ---

    void Foto(const char* nombre) const
    {
        if (!fotos.empty()) pantalla->FotoDeVentana(fotos + '/' + nombre + ".png");
    }
    void Pulsa(Lugar lugar)
    {
        const auto [x, y] = Pixel(lugar);
        pantalla->Pulsa(x, y);
    }
    /// Where an icon that was placed at a point is clicked on.
    static Lugar Icono(Lugar l) { return {l.x + 10, l.y + 10}; }
    static Lugar Marca(Lugar l) { return {l.x, l.y + 52}; }
    static std::pair<int, int> Pixel(Lugar l)
    {
        return {static_cast<int>(std::lround(LienzoX + l.x * LienzoAncho / 800)),
                static_cast<int>(std::lround(LienzoY + l.y * LienzoAlto / 800))};
    }
    /// Leaves `saltos` controls behind and types over what the next one holds.
    void Campo(int saltos, const char* texto)
    {
        pantalla->Teclas(std::vector<std::string>(static_cast<std::size_t>(saltos), "Tab"));
        pantalla->Teclea(texto);
    }
    void PorLaLetra(const char* tecla, const char* texto)
    {
        pantalla->Teclas({tecla, "ctrl+a"});
        pantalla->Teclea(texto);
    }
    void Nombra(const char* titulo, const char* nombre)
    {
        pantalla->EsperaVentana(titulo);
        pantalla->Teclea(nombre);
        Acepta(titulo);
        pantalla->EsperaVentana(Editor);
    }
    /// Two components are picked; the pop-up couples them.
    void Acopla(Lugar uno, Lugar otro, int entrada, bool pregunta)
    {
        Pulsa(uno);
        Pulsa(otro);
        pantalla->Teclas({"F2"});
        pantalla->Teclas(std::vector<std::string>(static_cast<std::size_t>(entrada), "Down"));
        pantalla->Teclas({"Return"});
        if (pregunta) Acepta("Consulta");
        pantalla->EsperaVentana(Editor);
    }
    [[nodiscard]] std::string Archivo(const char* terminacion, const char* proyecto = "Arroyo1") const
    {
        return Proyectos() + '/' + proyecto + terminacion;
    }

    // --- the day ---

    void CreaElProyecto()
    {
        pantalla->Teclas({"ctrl+n"});
        pantalla->EsperaVentana("Proyecto Nuevo");
        pantalla->Teclea("Arroyo1");
        Foto("tutorial_nuevo");
        pantalla->Teclas({"Return"});
        pantalla->EsperaVentana("SIRO");
        EXPECT_TRUE(fs::exists(Archivo("_Conf.vlm")));
        pantalla->Teclas({"Return"});
    }
    void Configura()
    {
        pantalla->EsperaVentana("Configurar");  // its last tab in front
        PorLaLetra("alt+e", "6");
        PorLaLetra("alt+a", "240");
        PorLaLetra("alt+z", "125");
        Campo(1, "-775");
        Campo(1, "-930");
        pantalla->Teclas({"Tab"});
        Foto("tutorial_imagen");
        pantalla->Teclas({"ctrl+Tab"});  // round to the first: from the list of files on to the image
        pantalla->Teclas({"alt+o", "Tab", "space", "Tab", "q", "Return"});
        pantalla->Teclas({"ctrl+Tab"});
        PorLaLetra("alt+t", "Crecidas del Arroyo 1");
        Campo(1, "Precordillera de Ruvera");
        Campo(1, "Arroyo 1");
        Foto("tutorial_titulos");
        pantalla->Teclas({"Return"});
        Acepta("SIRO");
        pantalla->EsperaVentana(Principal);

        const std::vector<std::string> conf =
            Lineas(model::DeWindows1252(BytesDeArchivo(Archivo("_Conf.vlm"))));
        ASSERT_GE(conf.size(), 28U);
        EXPECT_EQ(conf[0], "\"Arroyo1\"");
        EXPECT_EQ(conf[1], "\"Crecidas del Arroyo 1\"");
        EXPECT_EQ(conf[2], "\"Precordillera de Ruvera\"");
        EXPECT_EQ(conf[3], "\"Arroyo 1\"");
        EXPECT_EQ(conf[12], "1");  // with an image
        EXPECT_EQ(conf[13], '"' + Proyectos() + "/Quelmar.jpg\"");
        EXPECT_EQ(conf[14], "\"125\"");
        EXPECT_EQ(conf[19], "-775");
        EXPECT_EQ(conf[20], "-930");
        EXPECT_EQ(conf[25], "240");
        EXPECT_EQ(conf[27], "\"6\"");
    }
    void Dibuja()
    {
        pantalla->Teclas({"F3"});
        pantalla->EsperaVentana(Editor);
        pantalla->Mide(EditorAncho, EditorAlto);
        pantalla->Teclas({"ctrl+i"});
        DibujaCauce(Bajo, "Bajo");
        DibujaCauce(Alto, "Alto");
        Coloca("ctrl+4", Dique, "Agregar una Represa", "Dique");
        Coloca("ctrl+2", Cabecera, "Agregar una UEH", "Cabecera");
        Coloca("ctrl+2", Lateral, "Agregar una UEH", "Lateral");
        pantalla->Teclas({"ctrl+1"});
    }
    void DibujaCauce(const std::vector<Lugar>& vertices, const char* nombre)
    {
        pantalla->Teclas({"ctrl+3"});
        for (const Lugar& v : vertices)
            Pulsa(v);
        pantalla->Teclas({"Return"});
        Nombra("Agrega un nuevo Cauce", nombre);
    }
    void Coloca(const char* modo, Lugar lugar, const char* titulo, const char* nombre)
    {
        pantalla->Teclas({modo});
        Pulsa(lugar);
        Nombra(titulo, nombre);
    }
    void Enlaza()
    {
        // The first link is dragged from the mark below the icon; the question comes on the way.
        Pulsa(Icono(Cabecera));
        const auto [x, y] = Pixel(Marca(Cabecera));
        const auto [hastaX, hastaY] = Pixel(Alto.back());
        pantalla->Arrastra(x, y, hastaX, hastaY);
        Acepta("Consulta");
        pantalla->EsperaVentana(Editor);
        pantalla->Suelta();

        constexpr int CauceARepresa = 3, RepresaACauce = 4, UEHaCauce = 3;
        Acopla(Icono(Dique), Bajo[3], RepresaACauce, true);
        Acopla(Icono(Lateral), Bajo[3], UEHaCauce, true);
        Acopla(Alto[4], Icono(Dique), CauceARepresa, false);  // no question to wait for: no click may follow
        Foto("tutorial_mapa");
    }
    void LlenaLasUEHs()
    {
        pantalla->Teclas({"F3"});
        pantalla->EsperaVentana(FormaUEH);
        LlenaUEH({"450", "2300", "0.85", "3", "13.5", "0.36", "10", "0.06", "60"});
        Foto("tutorial_ueh");
        // Back to the list over what has been filled, and on to the second.
        pantalla->Teclas(std::vector<std::string>(14, "shift+Tab"));
        pantalla->Teclas({"Down"});
        LlenaUEH({"260", "1900", "0.65", "4", "12.8", "0.40", "10", "0.02", "60"});
        pantalla->Teclas({"Return"});
        pantalla->EsperaVentana(Editor);
    }
    void LlenaUEH(const std::array<const char*, 9>& valores)
    {
        // Between them lie name and notes, both lists, and the curve of infiltration.
        constexpr std::array<int, 9> Saltos{3, 3, 1, 1, 1, 1, 1, 2, 1};
        for (std::size_t i = 0; i < valores.size(); ++i)
            Campo(Saltos[i], valores[i]);
    }
    void LlenaLosCauces()
    {
        pantalla->Teclas({"F4"});
        pantalla->EsperaVentana(FormaCauce);
        Campo(3, "1700");
        pantalla->Teclas({"Tab", "space"});  // by Muskingum
        Campo(2, "10");
        Campo(1, "0.25");
        pantalla->Teclas(std::vector<std::string>(7, "shift+Tab"));
        pantalla->Teclas({"Down"});
        Campo(3, "1900");
        Campo(2, "2.1");
        Foto("tutorial_cauce");
        pantalla->Teclas({"Return"});
        pantalla->EsperaVentana(Editor);
    }
    void LlenaLaRepresa()
    {
        pantalla->Teclas({"F5"});
        pantalla->EsperaVentana(FormaRepresa);
        pantalla->Teclas({"Tab", "Tab", "Tab", "Tab", "Tab", "space"});
        pantalla->EsperaVentana(TablaHAS);
        pantalla->Teclea("4");  // rows; an empty table begins there
        pantalla->Teclas({"Tab"});
        for (const char* celda :
             {"0", "0.5", "0", "4", "8", "170000", "6", "17", "420000", "10", "34", "1440000"}) {
            pantalla->Teclea(celda);
            pantalla->Teclas({"Tab"});
        }
        Foto("tutorial_has");
        pantalla->Teclas({"Tab", "Tab", "Tab", "space"});
        Acepta("SIRO");  // the reminder to save
        pantalla->EsperaVentana(FormaRepresa);
        EXPECT_TRUE(
            MismoTexto("\"*r-Dique\",4,\"*\"\r\n0,0.5,0\r\n4,8,170000\r\n6,17,420000\r\n10,34,1440000\r\n",
                       BytesDeArchivo(Archivo("_RHAS.vlm"))));

        pantalla->Teclas({"shift+Tab"});
        pantalla->Teclea("6");
        pantalla->Teclas({"Tab", "Tab", "Right"});  // from table to functions
        pantalla->Teclas({"Tab", "space"});
        for (const char* valor : {"0.13", "0.5", "0", "10"})
            Campo(1, valor);
        pantalla->Teclas({"Tab", "space"});
        for (const char* valor : {"16", "1.5", "6", "10"})
            Campo(1, valor);
        Foto("tutorial_represa");
        pantalla->Teclas({"Return"});
        pantalla->EsperaVentana(Editor);
    }
    void GuardaYSaleDelEditor()
    {
        // Another's image of the drawing.
        pantalla->Teclas({"ctrl+p", "p", "p", "Return"});
        GuardaEn("Guardar el dibujo", raiz + "/red.pdf", Editor);
        EXPECT_TRUE(BytesDeArchivo(raiz + "/red.pdf").starts_with("%PDF-"));

        pantalla->Teclas({"ctrl+s"});
        Acepta("SIRO");
        pantalla->EsperaVentana(Editor);
        CompruebaLaRed();
        pantalla->Teclas({"ctrl+i"});  // it reads the network from the disk again
        Foto("tutorial_red");
        const std::string antes = BytesDeArchivo(Archivo("_UEHs.vlm"));
        pantalla->Teclas({"Escape"});
        Acepta("Resguardo de datos de componentes UEHs");
        Acepta("SIRO");
        pantalla->EsperaVentana(Principal);
        EXPECT_TRUE(MismoTexto(antes, BytesDeArchivo(Archivo("_UEHs.vlm"))));
    }
    void CompruebaLaRed()
    {
        model::Siro s;
        s.Proyecto.NombreProyecto = "Arroyo1";
        s.Proyecto.DirProyecto = s.Proyecto.DirProyectoConf = Proyectos();
        model::LeeUEHs(s);
        ASSERT_EQ(s.Red.ColCauces.Cuenta(), 2);
        ASSERT_EQ(s.Red.ColUEHs.Cuenta(), 2);
        ASSERT_EQ(s.Red.ColRepresas.Cuenta(), 1);
        EXPECT_EQ(s.Red.ColLagos.Cuenta(), 0);

        const model::Cauce& bajo = s.Red.ColCauces.Item(1);
        EXPECT_EQ(bajo.NombreCauce + ' ' + bajo.Cauce_aa, "c-Bajo 0");
        EXPECT_FALSE(bajo.optDirMusk);
        EXPECT_EQ((std::vector<float>{bajo.LongCauce, bajo.Cauce_k_Musk, bajo.Cauce_n_Musk}),
                  (std::vector<float>{1700, 10, 0.25F}));
        EXPECT_EQ(bajo.numVertices, 9);
        const model::Cauce& alto = s.Red.ColCauces.Item(2);
        EXPECT_EQ(alto.NombreCauce + ' ' + alto.Cauce_aa, "c-Alto r-Dique");
        EXPECT_TRUE(alto.optDirMusk);
        EXPECT_EQ((std::vector<float>{alto.LongCauce, alto.VelMediaCauce}), (std::vector<float>{1900, 2.1F}));
        EXPECT_EQ(alto.numVertices, 8);

        const auto datos = [](const model::UEH& u) {
            return std::vector<float>{u.Area,       u.LongitudMax, u.VelMedia,   u.RetensionZ, u.KostiakovA,
                                      u.KostiakovB, u.KostiakovI,  u.Q0Recesion, u.KRecesion};
        };
        const model::UEH& cabecera = s.Red.ColUEHs.Item(1);
        EXPECT_EQ(cabecera.NombreUEH + ' ' + cabecera.Cauce_aa, "u-Cabecera c-Alto");
        EXPECT_EQ(datos(cabecera), (std::vector<float>{450, 2300, 0.85F, 3, 13.5F, 0.36F, 10, 0.06F, 60}));
        EXPECT_NEAR(cabecera.IconoUEHx, Cabecera.x, 1);
        EXPECT_NEAR(cabecera.IconoUEHy, Cabecera.y, 1);
        const model::UEH& lateral = s.Red.ColUEHs.Item(2);
        EXPECT_EQ(lateral.NombreUEH + ' ' + lateral.Cauce_aa, "u-Lateral c-Bajo");
        EXPECT_EQ(datos(lateral), (std::vector<float>{260, 1900, 0.65F, 4, 12.8F, 0.4F, 10, 0.02F, 60}));

        const model::Represa& dique = s.Red.ColRepresas.Item(1);
        EXPECT_EQ(dique.NombreRepresa + ' ' + dique.Cauce_aa + ' ' + dique.Metodo,
                  "r-Dique c-Bajo Piscina Nivelada");
        EXPECT_EQ(dique.HInicialEmb, 6);
        for (std::size_t i = 0; i < dique.chkFQ.size(); ++i)
            EXPECT_EQ(dique.chkFQ[i], i < 2 ? 1 : 0) << i;
        EXPECT_EQ((std::vector<float>{dique.FQa[0], dique.FQb[0], dique.FQmin[0], dique.FQMax[0]}),
                  (std::vector<float>{0.13F, 0.5F, 0, 10}));
        EXPECT_EQ((std::vector<float>{dique.FQa[1], dique.FQb[1], dique.FQmin[1], dique.FQMax[1]}),
                  (std::vector<float>{16, 1.5F, 6, 10}));
    }
    void CorreUnaTormenta()
    {
        pantalla->Teclas({"F4"});
        pantalla->EsperaVentana(Precipitaciones);
        PorLaLetra("alt+r", "50");
        PorLaLetra("alt+p", "60");
        PorLaLetra("alt+d", "60");
        Foto("tutorial_tormenta");
        pantalla->Teclas({"Return"});
        pantalla->EsperaVentana(Principal);
        pantalla->Teclas({"F7", "F5"});
        const std::string archivo = dir + "/SalePizarra1_tem.txt";
        pantalla->EsperaA("the text file", [&] { return fs::exists(archivo); });
        // The chart has come up over the Slate: closed and opened again it is in front, with the text of the
        // run.
        pantalla->Teclas({"F7", "F7", "ctrl+End"});
        Foto("tutorial_pizarra");
        pantalla->Teclas({"ctrl+s"});
        GuardaEn("Guardar el texto de la Pizarra", raiz + "/pizarra.txt");

        const std::string lote = raiz + "/lote";
        fs::copy(SIRO_DATA_DIR, lote, fs::copy_options::recursive);
        const Salida salida = Lote({"una", Archivo("_Conf.vlm"), "--trabajo", lote, "--pp", "60", "--dur",
                                    "60", "--rec", "50", "--pizarra", "--resultados", raiz + "/r.csv"},
                                   "/");
        ASSERT_EQ(salida.estado, 0) << salida.errores;
        const std::string pizarra = model::DeWindows1252(BytesDeArchivo(raiz + "/pizarra.txt"));
        EXPECT_TRUE(MismoTexto(SinHora(salida.estandar), SinHora(pizarra)));
        EXPECT_TRUE(MismoTexto(SinHora(BytesDeArchivo(lote + "/SalePizarra1_tem.txt")),
                               SinHora(BytesDeArchivo(archivo))));

        // The table of the tutorial.
        for (const char* renglon :
             {"Caudal Máximo   UEH 1 u-Cabecera   42.56 m3", "Coef.Escorrent. UEH 1 u-Cabecera   45.6 %",
              "Caudal Máximo   UEH 2 u-Lateral   19.61 m3", "Coef.Escorrent. UEH 2 u-Lateral   37.3 %",
              "Coef. Escorrentía        = 42.59 %", "Caudal Máximo = 18.85 m3/s"})
            EXPECT_NE(pizarra.find(renglon), std::string::npos) << renglon;
        const std::string csv = BytesDeArchivo(raiz + "/r.csv");
        constexpr std::size_t Entra = 3, Sale = 4;
        EXPECT_EQ(Maximo(csv, Entra, "r-Dique"), 42.56);
        EXPECT_EQ(Maximo(csv, Sale, "r-Dique"), 4.85);
        EXPECT_EQ(Maximo(csv, Sale, "c-Bajo"), 18.85);
    }
    void MiraLosGraficos()
    {
        pantalla->Teclas({"F7", "F9"});
        Foto("tutorial_hidrograma");
        GuardaDelMenu("g", "Guardar las celdas como CSV", raiz + "/cabecera.csv");
        EXPECT_EQ(Maximo(BytesDeArchivo(raiz + "/cabecera.csv"), 1), 42.56);
        pantalla->Teclas({"Tab", "End", "shift+Tab"});  // the outlet, last of the list
        GuardaDelMenu("g", "Guardar las celdas como CSV", raiz + "/salida.csv");
        EXPECT_EQ(Maximo(BytesDeArchivo(raiz + "/salida.csv"), 1), 18.85);
        GuardaDelMenu("d", "Guardar el gráfico como PDF", raiz + "/salida.pdf");
        EXPECT_TRUE(BytesDeArchivo(raiz + "/salida.pdf").starts_with("%PDF-"));
        Foto("tutorial_salida");
        pantalla->Teclas({"alt+i"});  // on paper: there is no printer here
        Acepta("SIRO");
        pantalla->EsperaVentana(Principal);

        pantalla->Teclas({"F8"});
        GuardaDelMenu("s", "Guardar el gráfico como SVG", raiz + "/lluvia.svg");
        EXPECT_NE(BytesDeArchivo(raiz + "/lluvia.svg").find("<svg"), std::string::npos);
        GuardaDelMenu("g", "Guardar las celdas como CSV", raiz + "/lluvia.csv");
        EXPECT_EQ(Maximo(BytesDeArchivo(raiz + "/lluvia.csv"), 1), 60);
    }
    void CorreUnaSerie()
    {
        pantalla->Teclas({"alt+o", "o"});
        pantalla->EsperaVentana("Configurar");
        pantalla->Teclas({"ctrl+Tab", "ctrl+Tab"});
        // From R 2, ticked as it stays: without 5, 20, 25, 40, 200 and 1000.
        pantalla->Teclas({"Tab", "Tab", "space", "Tab", "Tab", "space", "Tab", "space", "Tab", "space"});
        pantalla->Teclas({"Tab", "Tab", "Tab", "space", "Tab", "Tab", "space"});
        Foto("tutorial_recurrencias");
        pantalla->Teclas({"Return"});
        Acepta("SIRO");
        pantalla->EsperaVentana(Principal);
        const std::vector<std::string> conf = Lineas(BytesDeArchivo(Archivo("_Conf.vlm")));
        ASSERT_GE(conf.size(), 42U);
        std::string tildes;
        for (std::size_t i = 28; i < 42; ++i)
            tildes += conf[i];
        EXPECT_EQ(tildes, "10100011000000");  // 2, 10, 50 and 100 years

        pantalla->Teclas({"F4"});
        pantalla->EsperaVentana(Precipitaciones);
        pantalla->Teclas({"alt+p", "shift+Tab", "Down", "Down", "Return"});
        pantalla->EsperaVentana(Principal);
        pantalla->Teclas({"F6"});
        Acepta("Desea continuar ?");
        Acepta("La tabla de resultados se guarda en archivo el temporal <SaleTablasQDRs_tem.txt>");
        pantalla->EsperaVentana(Principal);
        const std::string archivo = dir + "/SaleTablasQDRs_tem.txt";
        pantalla->EsperaA("the results of the series", [&] { return fs::exists(archivo); });
        Foto("tutorial_abaco");
        GuardaDelMenu("g", "Guardar las celdas como CSV", raiz + "/abaco.csv");
        EXPECT_NE(BytesDeArchivo(raiz + "/abaco.csv")
                      .find("\r\n\"Duración Tormenta D[minutos]\",\"R= 2 años [m3/s]\",\"R= 10 años [m3/s]\","
                            "\"R= 50 años [m3/s]\",\"R= 100 años [m3/s]\"\r\n"),
                  std::string::npos);
        pantalla->Teclas({"alt+s", "Down", "Down", "Down", "Return"});
        Foto("tutorial_planilla");
        GuardaDelMenu("s", "Guardar la tabla como CSV", raiz + "/tabla.csv");
        GuardaDelMenu("x", "Guardar la tabla como XLSX", raiz + "/tabla.xlsx");
        EXPECT_TRUE(BytesDeArchivo(raiz + "/tabla.xlsx").starts_with("PK"));

        const std::string lote = raiz + "/lote";
        const Salida salida = Lote({"serie", Archivo("_Conf.vlm"), "--trabajo", lote}, "/");
        ASSERT_EQ(salida.estado, 0) << salida.errores;
        EXPECT_TRUE(MismoTexto(SinHora(BytesDeArchivo(lote + "/SaleTablasQDRs_tem.txt")),
                               SinHora(BytesDeArchivo(archivo))));
        // The file has nine lines of heads, the table six, and a line per storm for the basin.
        constexpr std::size_t Tormentas = 4 * 14;  // recurrences and durations
        EXPECT_EQ(Lineas(BytesDeArchivo(raiz + "/tabla.csv")).size() - 6,
                  Lineas(BytesDeArchivo(archivo)).size() - 9 + Tormentas);
    }
    void ArchivaYLimpia()
    {
        // Another morning: a copy is made of a project that has been opened.
        Termina();
        pantalla->Arranca(dir + "/siro");
        pantalla->EsperaVentana(Principal);
        pantalla->Mide(1040, 790);
        const std::string puntero = dir + "/VelmirDir.vlm";
        fs::remove(puntero);
        pantalla->Teclas({"ctrl+o"});
        pantalla->EsperaVentana("Abrir");
        pantalla->Teclea(Archivo("_Conf.vlm"));
        pantalla->Teclas({"Return"});
        pantalla->EsperaVentana(Principal);
        // The dialog goes before the project is read; once it has been, it is noted as the last one.
        pantalla->EsperaA("the project to be open", [&] { return fs::exists(puntero); });
        const std::map<std::string, std::string> antes = Guardados("Arroyo1");
        ASSERT_EQ(antes.size(), 4U);
        const char* const titulo = "Cuardar Como...(copia el proyecto actual con otro nombre)";
        // A moment later still the menu's entry wakes up: until then its keys say nothing.
        pantalla->EsperaA("the name of the copy", [&] {
            if (pantalla->Activa() == titulo) return true;
            pantalla->Teclas({"ctrl+shift+s"});
            return false;
        });
        pantalla->Teclea("Variante");
        Acepta(titulo);
        Acepta("SIRO");  // its configuration; then its network
        pantalla->EsperaA("the copy of the network",
                          [&] { return fs::exists(Archivo("_UEHs.vlm", "Variante")); });
        Acepta("SIRO");
        pantalla->EsperaVentana(Principal);
        const std::map<std::string, std::string> copia = Guardados("Variante");
        ASSERT_EQ(copia.size(), 4U);
        for (const char* terminacion : {"_UEHs.vlm", "_VerCau.vlm", "_RHAS.vlm"})
            EXPECT_NE(copia.find(terminacion), copia.end()) << terminacion;
        EXPECT_EQ(copia.at("_VerCau.vlm"), antes.at("_VerCau.vlm"));
        EXPECT_EQ(copia.at("_RHAS.vlm"), antes.at("_RHAS.vlm"));

        Calcula();

        const char* const eliminar = "Eliminar un Proyecto existente";
        pantalla->Teclas({"alt+a", "e"});
        pantalla->EsperaVentana(eliminar);
        pantalla->Teclas({"v", "Return"});
        Foto("tutorial_eliminar");
        pantalla->Teclas({"alt+a"});
        Acepta("Consulta");
        pantalla->EsperaVentana(Principal);
        pantalla->EsperaA("the copy to go", [&] { return Guardados("Variante").empty(); });
        EXPECT_EQ(Guardados("Arroyo1"), antes);
    }
    /// The calculator's results, kept beside the copy's titles.
    void Calcula()
    {
        pantalla->Teclas({"alt+s", "m"});
        pantalla->Teclas({"ctrl+a"});
        pantalla->Teclea("7.1");
        Campo(1, "3.6");
        Campo(1, "180");
        Campo(1, "5");
        pantalla->Teclas({"Tab"});
        Foto("tutorial_formulas");
        pantalla->Teclas({"alt+t", "alt+c"});
        pantalla->EsperaVentana(Principal);
        pantalla->Teclas({"alt+o", "o"});
        pantalla->EsperaVentana("Configurar");
        pantalla->Teclas({"ctrl+Tab", "alt+o", "ctrl+v", "Return"});
        Acepta("SIRO");
        pantalla->EsperaVentana(Principal);
        const std::string conf = model::DeWindows1252(BytesDeArchivo(Archivo("_Conf.vlm", "Variante")));
        // 60 * 0.1272 * (100 * 7.1 / 3.6)^0.5 = 7.632 * 14.0436 = 107.18
        EXPECT_TRUE(std::regex_search(conf, std::regex("Ventura[^0-9]*107\\.18"))) << conf;
    }
    /// The files of a project by what follows its name; the runs that it keeps are in a folder of their own.
    [[nodiscard]] std::map<std::string, std::string> Guardados(const std::string& proyecto) const
    {
        std::map<std::string, std::string> archivos;
        for (const fs::directory_entry& entrada : fs::directory_iterator(Proyectos())) {
            const std::string nombre = entrada.path().filename().string();
            if (entrada.is_regular_file() && nombre.starts_with(proyecto))
                archivos[nombre.substr(proyecto.size())] = BytesDeArchivo(entrada);
        }
        return archivos;
    }

    /// Size of the editor's window and place of its canvas in it: four by three, as the drawing's units want
    /// it.
    static constexpr int EditorAncho = 910, EditorAlto = 760;
    static constexpr int LienzoX = 4, LienzoY = 44, LienzoAncho = 888, LienzoAlto = 666;
    std::string fotos{};
};

TEST_F(UnDia, DelProyectoVacioAlEstudioTerminado)
{
    CreaElProyecto();
    if (!HasFatalFailure()) Configura();
    if (!HasFatalFailure()) Dibuja();
    if (!HasFatalFailure()) Enlaza();
    if (!HasFatalFailure()) LlenaLasUEHs();
    if (!HasFatalFailure()) LlenaLosCauces();
    if (!HasFatalFailure()) LlenaLaRepresa();
    if (!HasFatalFailure()) GuardaYSaleDelEditor();
    if (!HasFatalFailure()) CorreUnaTormenta();
    if (!HasFatalFailure()) MiraLosGraficos();
    if (!HasFatalFailure()) CorreUnaSerie();
    if (!HasFatalFailure()) ArchivaYLimpia();
    if (!HasFatalFailure()) Termina();
}

}  // namespace
