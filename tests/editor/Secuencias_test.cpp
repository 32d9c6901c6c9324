// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "editor/EditorDePrueba.h"
#include "editor/MenuDibujo.h"
#include "editor/RedEscrita.h"
#include "model/ArchivoConf.h"

// The editor as a machine: whatever the user clicks, drags, types and answers, the network stays whole, goes
// to its files and comes back equal, and every step can be undone.
namespace {

using editor::Boton;
using editor::Punto;

constexpr int Secuencias = 10000;
constexpr int Partes = 5;
constexpr int LargoMayor = 32;  // events

/// The network without what a save works out anew.
struct RedComparable {
    model::Siro s;
    explicit RedComparable(const model::Siro& de) : s(de)
    {
        int n = 0;
        for (auto& c : s.Red.ColCauces) {
            c.numCauce = static_cast<std::int16_t>(++n);
            c.OrdenCauce = 0;
        }
    }
    [[nodiscard]] std::vector<Punto> Vertices() const
    {
        std::vector<Punto> r;
        for (int i = 1; i <= s.Red.ColCauces.Cuenta(); ++i)
            for (int j = 1; j <= s.Red.NroVertices(i); ++j)
                r.push_back({s.Red.XVertice(i, j), s.Red.YVertice(i, j)});
        return r;
    }
    bool operator==(const RedComparable& otra) const
    {
        return s.Red.ColUEHs == otra.s.Red.ColUEHs && s.Red.ColCauces == otra.s.Red.ColCauces &&
               s.Red.ColLagos == otra.s.Red.ColLagos && s.Red.ColRepresas == otra.s.Red.ColRepresas &&
               Vertices() == otra.Vertices();
    }
};

class Azar {
  public:
    explicit Azar(std::uint32_t semilla) : motor(semilla) {}
    /// 0 to n - 1.
    int Hasta(int n) { return static_cast<int>(motor() % static_cast<std::uint32_t>(n)); }
    bool Uno(int deCada) { return Hasta(deCada) == 0; }
    template <typename T, std::size_t N>
    T De(const std::array<T, N>& opciones)
    {
        return opciones[static_cast<std::size_t>(Hasta(static_cast<int>(N)))];
    }

  private:
    std::mt19937 motor;  // the same numbers everywhere, unlike the distributions
};

struct Maquina : EditorDePrueba {
    Azar azar{1};
    std::vector<std::string> bitacora{};  ///< what the user did, shown where a sequence fails
    std::vector<std::string> fallas{};    ///< boxes of faults that have no name
    std::set<std::string> elegidas{};     ///< entries of the menu, over all sequences
    int enlazados = 0, movidos = 0;       ///< drags that linked, that changed something else

    Maquina()
    {
        s.Anfitrion.Avisa = [this](const model::Mensaje& m) {
            if (m.texto.starts_with("Error Nro.") && !ConNombre()) fallas.push_back(m.texto);
        };
        s.Anfitrion.Pregunta = [this](const model::Mensaje&) { return azar.Uno(2); };
        s.Anfitrion.PideTexto = [this](const model::Peticion&) {
            if (azar.Uno(6)) return std::string{};
            if (azar.Uno(8)) return "nombre muy largo " + std::to_string(azar.Hasta(9));
            return std::to_string(azar.Hasta(60));
        };
        f.fondo.CargaImagen = [](const std::string&) {
            return editor::ImagenCargada{editor::CargaDeImagen::Entera, {500, 400}};
        };
        s.frmConfigura.chkImagenDibujo = 1;
        s.frmConfigura.lblImagenDibujo = "fondo.jpg";
        model::cmdAplicar(s);
        disco.Pon("/proy/fondo.jpg", "x");
    }

    // --- where the user points: whole units, so that the 7 digits of the files hold every coordinate ---

    Punto Cerca(Punto p, int radio)
    {
        return {p.X + static_cast<float>(azar.Hasta(2 * radio + 1) - radio),
                p.Y + static_cast<float>(azar.Hasta(2 * radio + 1) - radio)};
    }
    template <typename Coleccion, typename Posicion>
    Punto EnIcono(const Coleccion& coleccion, Posicion posicion)
    {
        const Punto icono = posicion(coleccion.Item(1 + azar.Hasta(coleccion.Cuenta())));
        if (azar.Uno(3)) return {icono.X, std::round(icono.Y + 3.5F * f.vista.TamIcono)};  // its handle
        return {icono.X + 3, icono.Y + 4};
    }
    Punto EnVertice()
    {
        const int i = 1 + azar.Hasta(s.Red.ColCauces.Cuenta());
        const int n = s.Red.NroVertices(i);
        const int j = azar.Uno(2) ? n : 1 + azar.Hasta(n);
        return Cerca(Vertice(i, j), 3);
    }
    Punto Donde()
    {
        switch (azar.Hasta(6)) {
        case 0:
            if (s.Red.ColUEHs.Cuenta() > 0)
                return EnIcono(s.Red.ColUEHs, [](const auto& u) { return Punto{u.IconoUEHx, u.IconoUEHy}; });
            break;
        case 1:
            if (s.Red.ColRepresas.Cuenta() > 0)
                return EnIcono(s.Red.ColRepresas, [](const auto& r) {
                    return Punto{r.IconoRepresaX, r.IconoRepresaY};
                });
            break;
        case 2:
            if (s.Red.ColLagos.Cuenta() > 0)
                return EnIcono(s.Red.ColLagos, [](const auto& l) {
                    return Punto{l.IconoLAGOx, l.IconoLAGOy};
                });
            break;
        case 3:
        case 4:
            if (s.Red.ColCauces.Cuenta() > 0) return EnVertice();
            break;
        default:
            break;
        }
        return {static_cast<float>(azar.Hasta(800)), static_cast<float>(azar.Hasta(800))};
    }

    // --- what the user does ---

    void Anota(const std::string& que) { bitacora.push_back(que); }
    void Anota(const std::string& que, Punto p)
    {
        bitacora.push_back(que + " " + std::to_string(p.X) + "," + std::to_string(p.Y));
    }

    void ApretaBoton()
    {
        static constexpr auto Botones = std::to_array<Boton>(
            {Boton::Selecciona, Boton::Selecciona, Boton::Selecciona, Boton::Selecciona, Boton::UEH,
             Boton::UEH, Boton::Cauce, Boton::Cauce, Boton::Cauce, Boton::Represa, Boton::LAGO,
             Boton::LongArea, Boton::SUEH, Boton::GuardaUEHs, Boton::Salir});
        const Boton b = azar.Uno(80) ? Boton::BorraTodo : azar.De(Botones);
        Anota("button " + std::string(editor::BotonesUEHs[static_cast<std::size_t>(b)].clave));
        PonModo(b);
    }
    void Clics()
    {
        const int veces = editor::Modo(f) == Boton::Cauce ? 1 + azar.Hasta(azar.Uno(10) ? 24 : 4) : 1;
        for (int i = 0; i < veces; ++i) {
            const Punto p = Donde();
            Anota("click", p);
            Clic(p.X, p.Y);
        }
    }
    void DobleClicEnAlgo()
    {
        const Punto p = Donde();
        Anota("double click", p);
        DobleClic(p.X, p.Y);
    }
    void Arrastre()
    {
        const Punto desde = Donde();
        if (azar.Uno(2)) {
            Anota("click before", desde);
            Clic(desde.X, desde.Y);
        }
        Anota("press", desde);
        const RedComparable antes(s);
        Aprieta(desde.X, desde.Y);
        Punto p = desde;
        for (int i = azar.Hasta(5); i >= 0; --i) {
            p = azar.Uno(3) ? Donde() : Cerca(p, 12);
            Anota("move", p);
            Mueve(p.X, p.Y);
        }
        if (azar.Uno(20)) return;  // the release gets lost
        Anota("release");
        Suelta(p.X, p.Y);
        if (antes == RedComparable(s)) return;
        ++(Destinos(antes.s) == Destinos(s) ? movidos : enlazados);
    }
    static std::vector<std::string> Destinos(const model::Siro& s)
    {
        std::vector<std::string> r;
        for (const auto& u : s.Red.ColUEHs)
            r.push_back(u.Cauce_aa);
        for (const auto& c : s.Red.ColCauces)
            r.push_back(c.Cauce_aa);
        for (const auto& l : s.Red.ColLagos)
            r.push_back(l.Cauce_aa);
        for (const auto& c : s.Red.ColRepresas)
            r.push_back(c.Cauce_aa);
        return r;
    }
    void UnaTecla()
    {
        static constexpr auto Teclas = std::to_array<editor::Tecla>(
            {editor::Tecla::F2, editor::Tecla::F3, editor::Tecla::F4, editor::Tecla::F5, editor::Tecla::F6,
             editor::Tecla::Enter, editor::Tecla::Enter, editor::Tecla::Enter, editor::Tecla::Suprimir,
             editor::Tecla::Suprimir, editor::Tecla::Suprimir, editor::Tecla::Insertar, editor::Tecla::Esc,
             editor::Tecla::Deshacer, editor::Tecla::Deshacer, editor::Tecla::Rehacer});
        const editor::Tecla t = azar.De(Teclas);
        Anota("key " + std::to_string(static_cast<int>(t)));
        Tecla(t);
    }
    void UnaEntradaDelMenu()
    {
        // One thing to choose, or two, then one of the entries that they enable.
        if (!azar.Uno(4)) PonModo(Boton::Selecciona);
        for (int i = azar.Hasta(2); i >= 0; --i) {
            const Punto p = Donde();
            Anota("click for the menu", p);
            Clic(p.X, p.Y);
        }
        std::vector<std::string_view> nombres;
        for (const auto& e : editor::MenuDibujoSec())
            if (e.habilitada(s)) nombres.push_back(e.nombre);
        // The first two are there always.
        const int desde = nombres.size() > 2 && !azar.Uno(8) ? 2 : 0;
        const int cuantos = static_cast<int>(nombres.size()) - desde;
        const auto nombre = nombres[static_cast<std::size_t>(desde + azar.Hasta(cuantos))];
        Anota("menu " + std::string(nombre));
        elegidas.insert(std::string(nombre));
        editor::mnu_DibujoSec_Click(f, s, nombre);
    }
    void AlgoDeLaVista()
    {
        const int que = azar.Hasta(8);
        Anota("view " + std::to_string(que));
        const Punto p = Donde();
        switch (que) {
        case 0:
            editor::sldEscala_Mueve(f, s, azar.Hasta(1100));
            break;
        case 1:
            editor::ScrEscalaHor_Mueve(f, s, azar.Hasta(300) - 150);
            break;
        case 2:
            editor::ScrEscalaVer_Mueve(f, s, azar.Hasta(300) - 150);
            break;
        case 3:
            editor::picDibujo_Rueda(f, s, azar.Hasta(9) - 4, p);
            break;
        case 4:
            editor::cmdAnchoLineaDib_Click(f, s);
            break;
        case 5:
            editor::cmdOrdenCauce_Click(f, s);
            break;
        case 6:
            if (azar.Uno(4)) editor::cmdImagenUEHs_Click(f, s);
            break;
        default:
            editor::AlActivarse(f, s);
        }
    }
    void UnEvento()
    {
        if (!f.abierta) Abre();
        f.pedidos.clear();
        switch (azar.Hasta(14)) {
        case 0:
        case 1:
            ApretaBoton();
            break;
        case 2:
        case 3:
        case 4:
            Clics();
            break;
        case 5:
            DobleClicEnAlgo();
            break;
        case 6:
        case 7:
            Arrastre();
            break;
        case 8:
        case 9:
            UnaTecla();
            break;
        case 10:
        case 11:
        case 12:
            UnaEntradaDelMenu();
            break;
        default:
            AlgoDeLaVista();
        }
    }

    // --- what must hold ---

    [[nodiscard]] std::string Cuenta() const
    {
        std::string r;
        for (const std::string& linea : bitacora)
            r += "\n  " + linea;
        return r;
    }
    /// A fault that is told now has a name: a kind beyond the bound of its array, an eleventh outfall.
    [[nodiscard]] bool ConNombre() const
    {
        return s.Red.ColRepresas.Cuenta() == model::MaxRepresas ||
               s.Red.ColCauces.Cuenta() == model::MaxCauces || s.Red.ColUEHs.Cuenta() == model::MaxUEHs ||
               s.Red.ColLagos.Cuenta() == model::MaxLagos || s.Resultados.NroSalidas > model::MaxSalidas;
    }
    void GuardaYRelee()
    {
        if (f.gesto.izquierdoAbajo) Suelta(1, 1);
        editor::DescartaTrazo(f, s);
        const RedComparable antes(s);
        model::GuardaRed(s);
        EXPECT_TRUE(antes == RedComparable(s)) << "saved and read back";
        Abre();
        EXPECT_TRUE(antes == RedComparable(s)) << "opened again";
        EXPECT_EQ(s.Red.NroCauces(), antes.s.Red.ColCauces.Cuenta());
    }
    /// What is kept of the network while it isn't saved is all of it, the reach being drawn included.
    void VaYVuelveComoBytes()
    {
        if (f.gesto.izquierdoAbajo) Suelta(1, 1);
        editor::Evento(f, s, [] {});
        const editor::RedGuardada& presente = *f.historia.presente;
        const auto escrita = editor::Escribe(presente);
        ASSERT_TRUE(escrita);
        const auto leida = editor::Lee(*escrita);
        ASSERT_TRUE(leida);
        EXPECT_EQ(editor::Compara(presente, *leida), editor::Diferencia{}) << "as bytes and back";
        EXPECT_EQ(leida->trazo, presente.trazo);
        EXPECT_EQ(leida->NroCauces(), presente.NroCauces());
        EXPECT_EQ(editor::Escribe(*leida), escrita);
    }
    /// Back to the beginning and forth again.
    void DeshaceYRehaceTodo()
    {
        if (f.gesto.izquierdoAbajo) Suelta(1, 1);
        editor::Evento(f, s, [] {});
        const RedComparable ultima(s);
        std::size_t pasos = 0;
        while (editor::Deshace(f, s)) {
            ++pasos;
            EXPECT_EQ(Faltas(), std::vector<std::string>{}) << "after undoing " << pasos;
        }
        for (std::size_t i = 0; i < pasos; ++i)
            EXPECT_TRUE(editor::Rehace(f, s));
        EXPECT_EQ(Faltas(), std::vector<std::string>{}) << "after redoing";
        EXPECT_TRUE(ultima == RedComparable(s)) << "undone and redone";
    }

    void Empieza(int semilla)
    {
        azar = Azar(static_cast<std::uint32_t>(semilla));
        bitacora.clear();
        fallas.clear();
        s.Resultados.NroSalidas = 0;
        disco.Quita("/proy/Arroyo_UEHs.vlm");
        disco.Quita("/proy/Arroyo_VerCau.vlm");
        f.trazo.marcaCauce.clear();
        Abre();
        if (azar.Uno(3)) return;  // from nothing
        red.Cauce("c-a", {{100, 700}, {150, 600}, {200, 500}});
        red.Cauce("c-b", {{200, 500}, {150, 400}, {100, 300}}, "c-a");
        red.Cauce("c-d", {{210, 480}, {300, 420}, {400, 300}, {420, 200}});
        red.UEH("u-a", {60, 200}, "c-b", {100, 300});
        red.UEH("u-b", {480, 150});
        red.Represa("r-a", {320, 600});
        red.Lago("l-a", {600, 400});
        Guarda();
    }
    void Corre(int semilla)
    {
        Empieza(semilla);
        for (int i = azar.Hasta(LargoMayor); i >= 0; --i) {
            UnEvento();
            ASSERT_EQ(Faltas(), std::vector<std::string>{});
            ASSERT_EQ(fallas, std::vector<std::string>{});
        }
        if (!f.abierta) Abre();
        VaYVuelveComoBytes();
        DeshaceYRehaceTodo();
        GuardaYRelee();
    }
};

/// A part of the sequences, so that the parts run side by side.
struct ParteDeLasSecuencias : Maquina, ::testing::WithParamInterface<int> {};

TEST_P(ParteDeLasSecuencias, DejaUnaRedEnteraQueSeGuardaYSeLeeIgual)
{
    for (int semilla = GetParam() + 1; semilla <= GetParam() + Secuencias / Partes; ++semilla) {
        Corre(semilla);
        ASSERT_FALSE(HasFailure()) << "sequence " << semilla << Cuenta();
    }
    // The sequences do get around.
    EXPECT_EQ(elegidas.size(), editor::MenuDibujoSec().size());
    EXPECT_GT(enlazados, 10);
    EXPECT_GT(movidos, 100);
}

INSTANTIATE_TEST_SUITE_P(DiezMil, ParteDeLasSecuencias, ::testing::Range(0, Secuencias, Secuencias / Partes));

/// Long ones, which come to the limits of the arrays.
TEST_F(Maquina, SecuenciasLargasSinBorrarLleganALosLimites)
{
    for (int semilla = 1; semilla <= 5; ++semilla) {
        Empieza(semilla);
        for (int i = 0; i < 25; ++i)
            for (const Boton b : {Boton::UEH, Boton::Represa, Boton::LAGO, Boton::UEH, Boton::LAGO,
                                  Boton::UEH, Boton::LAGO}) {
                PonModo(b);
                Clics();
                ASSERT_EQ(Faltas(), std::vector<std::string>{}) << Cuenta();
                ASSERT_EQ(fallas, std::vector<std::string>{}) << Cuenta();
            }
        GuardaYRelee();
        ASSERT_FALSE(HasFailure()) << "sequence " << semilla << Cuenta();
    }
}

}  // namespace
