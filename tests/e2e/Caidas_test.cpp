// SPDX-License-Identifier: GPL-3.0-or-later
//
// The desktop is killed while a user draws, at any moment, and what is left of his work is looked at. A few
// kills here; many by hand, several such programs at a time:
//
//   SIRO_CAIDAS          how many
//   SIRO_CAIDAS_SEMILLA  the seed
//   SIRO_CAIDAS_TABLA    a file to which each kill adds a line

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <random>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "apoyo/Compara.h"
#include "e2e/Bitacora.h"
#include "e2e/Pantalla.h"
#include "model/Componentes.h"
#include "model/Siro.h"
#include "shell/Diario.h"

namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;

constexpr int CaidasDeSiempre = 8;
/// From what the user does to the disk: the look at it, and a busy machine's time to write it.
constexpr long long PerdidaMayor = 1500;  // [ms]

int DelAmbiente(const char* nombre, int deOtroModo)
{
    const char* const texto = std::getenv(nombre);
    return texto == nullptr ? deOtroModo : std::atoi(texto);
}

struct Estado {
    long long cuando = 0;
    std::size_t sena = 0;
    bool guardado = false;
};

/// What the program told of itself.
struct Bitacora {
    int proceso = 0, x = 0, y = 0, ancho = 0, alto = 0;
    std::vector<Estado> estados{};
    explicit Bitacora(const std::string& archivo)
    {
        std::ifstream entrada(archivo);
        if (!(entrada >> proceso >> x >> y >> ancho >> alto)) return;
        for (Estado e; entrada >> e.cuando >> e.sena >> e.guardado;)
            estados.push_back(e);
    }
    [[nodiscard]] bool Lista() const { return !estados.empty(); }
    /// The last state with a sign, from 0; -1: there is none.
    [[nodiscard]] int Busca(std::size_t sena) const
    {
        for (int i = static_cast<int>(estados.size()) - 1; i >= 0; --i)
            if (estados[static_cast<std::size_t>(i)].sena == sena) return i;
        return -1;
    }
};

/// What the project's files hold.
std::size_t SenaDeArchivos(const std::string& carpeta, bool& sanos)
{
    model::Siro s;
    s.Disco.Recupera(carpeta);  // as the next start does
    s.Proyecto.NombreProyecto = "Quelmar";
    s.Proyecto.DirProyecto = carpeta;
    model::LeeUEHs(s);
    sanos = !s.Control.CargaFallida && s.Red.ColUEHs.Cuenta() > 0;
    editor::Historia h;
    editor::EmpiezaHistoria(h, {}, s.Red, {});
    return e2e::Sena(editor::Escribe(*h.presente));
}

class Caidas : public testing::Test {
  protected:
    void SetUp() override
    {
        azar.seed(static_cast<unsigned>(DelAmbiente("SIRO_CAIDAS_SEMILLA", 1)));
        fs::copy(SIRO_DATA_DIR, propio, fs::copy_options::recursive);
    }
    int Hasta(int n) { return static_cast<int>(azar() % static_cast<unsigned>(n)); }

    // --- hands ---

    using Palabras = std::vector<std::string>;
    static void Suma(Palabras& a, const Palabras& b) { a.insert(a.end(), b.begin(), b.end()); }
    Palabras Va(const Bitacora& b)
    {
        constexpr int Orilla = 20;
        return {"mousemove", std::to_string(b.x + Orilla + Hasta(b.ancho - 2 * Orilla)),
                std::to_string(b.y + Orilla + Hasta(b.alto - 2 * Orilla))};
    }
    Palabras Nombre()
    {
        return {"sleep", "0.12", "key",   std::to_string(Hasta(10)), "key", std::to_string(Hasta(10)), "key",
                "z",     "key",  "Return"};
    }
    /// What the user does next: place, draw, drag, undo, redo, save.
    Palabras Orden(const Bitacora& b)
    {
        Palabras p;
        switch (Hasta(10)) {
        case 0:
        case 1:
        case 2: {
            const std::array<const char*, 3> modos{"ctrl+2", "ctrl+4", "ctrl+5"};
            Suma(p, {"key", modos[static_cast<std::size_t>(Hasta(3))]});
            Suma(p, Va(b));
            Suma(p, {"click", "1"});
            Suma(p, Nombre());
            break;
        }
        case 3:
        case 4:
            Suma(p, {"key", "ctrl+3"});
            for (int i = 3 + Hasta(4); i > 0; --i) {
                Suma(p, Va(b));
                Suma(p, {"click", "1", "sleep", "0.06"});
            }
            Suma(p, {"key", "Return"});
            Suma(p, Nombre());
            break;
        case 5:
        case 6:
            Suma(p, {"key", "ctrl+1"});
            Suma(p, Va(b));
            Suma(p, {"mousedown", "1"});
            for (int i = 0; i < 4; ++i) {
                Suma(p, Va(b));
                Suma(p, {"sleep", "0.03"});
            }
            Suma(p, {"mouseup", "1"});
            break;
        case 7:
            Suma(p, {"key", "ctrl+z"});
            break;
        case 8:
            Suma(p, {"key", Hasta(2) == 0 ? "ctrl+y" : "ctrl+z"});
            break;
        default:
            Suma(p, {"key", "ctrl+s", "sleep", "0.15", "key", "Return"});
        }
        Suma(p, {"sleep", "0.05"});
        return p;
    }

    // --- a kill ---

    void Prepara()
    {
        fs::remove_all(suyo);
        fs::remove(bitacora);
        for (const char* const fin : {"UEHs", "VerCau", "RHAS", "RHQ", "LHASQ"})
            fs::copy_file(fs::path(SIRO_DATA_DIR) / "Proyectos" / ("Quelmar_" + std::string(fin) + ".vlm"),
                          fs::path(proyectos) / ("Quelmar_" + std::string(fin) + ".vlm"),
                          fs::copy_options::overwrite_existing);
        for (const auto& resto : fs::directory_iterator(proyectos))
            if (resto.path().filename().string().starts_with(".")) fs::remove(resto.path());
    }
    /// Returns what the program had told by then, and when it was killed.
    std::pair<Bitacora, long long> Mata()
    {
        constexpr int HastaMorir = 3500;  // [ms]
        e2e::Proceso programa({SIRO_QUE_CAE, propio, suyo, proyectos + "/Quelmar_Conf.vlm", bitacora},
                              pantalla.Entorno(), pantalla.Diario());
        if (!e2e::Espera([&] { return Bitacora(bitacora).Lista(); })) return {Bitacora(bitacora), 0};
        const Bitacora inicial(bitacora);
        Palabras palabras{"xdotool"};
        for (int i = 0; i < 16; ++i)
            Suma(palabras, Orden(inicial));
        const e2e::Proceso manos(palabras, pantalla.Entorno());
        std::this_thread::sleep_for(milliseconds(100 + Hasta(HastaMorir)));
        const long long cuando = e2e::Ahora();
        programa.Mata();
        return {Bitacora(bitacora), cuando};
    }

    /// How a kill came out.
    struct Hallado {
        int estados = 0, perdidos = 0;  ///< states of the network; of them those that aren't there any more
        long long perdida = 0;          ///< age of the oldest of these [ms]
        bool conDiario = false;
        std::string mal{};  ///< what mustn't be
    };
    Hallado Mira(const Bitacora& b, long long cuando) const
    {
        Hallado h{.estados = static_cast<int>(b.estados.size())};
        if (cuando == 0) return {.mal = "the program didn't start"};
        bool sanos = false;
        std::size_t sena = SenaDeArchivos(proyectos, sanos);
        if (!sanos) h.mal = "the project's files are damaged";
        const int guardado = b.Busca(sena);
        if (guardado < 0) h.mal = "the project's files hold what nobody has saved";
        const auto todos =
            shell::BuscaDiarios(model::DiscoDelSistema(), diarios, [](const std::string&) { return true; });
        if (todos.size() > 1) h.mal = "more than one journal";
        h.conDiario = !todos.empty();
        if (h.conDiario && !todos[0].dano.empty()) h.mal = todos[0].dano;
        if (h.conDiario && todos[0].diario.red) {
            const auto red = editor::Lee(*todos[0].diario.red);
            if (!red) h.mal = "the journal's network can't be read";
            if (todos[0].diario.proyecto != "Quelmar") h.mal = "the journal is of another project";
            const std::size_t deDiario = e2e::Sena(todos[0].diario.red);
            // A journal that a save has overtaken is offered no more than what it holds is newer.
            if (b.Busca(deDiario) >= guardado) sena = deDiario;
            if (b.Busca(deDiario) < 0) h.mal = "the journal holds what never was";
        }
        const int hasta = b.Busca(sena), ultimo = h.estados - 1;
        if (hasta < 0 || hasta >= ultimo) return h;
        // Where the newer ones differ from the older in nothing but that they are saved, nothing is lost.
        h.perdidos = ultimo - hasta;
        h.perdida = cuando - b.estados[static_cast<std::size_t>(hasta) + 1].cuando;
        if (h.perdida > PerdidaMayor) h.mal = "too much is lost";
        return h;
    }

    apoyo::CarpetaTemporal carpeta{};
    std::string propio = carpeta.Ruta("siro"), proyectos = propio + "/Proyectos", suyo = carpeta.Ruta("suyo"),
                diarios = suyo + "/Diario", bitacora = carpeta.Ruta("bitacora.txt");
    e2e::Pantalla pantalla{carpeta.Ruta("casa")};
    std::mt19937 azar{};
};

TEST_F(Caidas, DeLoSinGuardarSePierdeAlosumoLoUltimo)
{
    const int cuantas = DelAmbiente("SIRO_CAIDAS", CaidasDeSiempre);
    const char* const tabla = std::getenv("SIRO_CAIDAS_TABLA");
    int enteras = 0, conDiario = 0;
    for (int i = 0; i < cuantas; ++i) {
        Prepara();
        const auto [b, cuando] = Mata();
        const Hallado h = Mira(b, cuando);
        EXPECT_EQ(h.mal, "") << "kill " << i << ", " << h.perdidos << " of " << h.estados << " states, "
                             << h.perdida << " ms";
        enteras += h.perdidos == 0;
        conDiario += h.conDiario;
        if (tabla != nullptr)
            std::ofstream(tabla, std::ios::app) << h.estados << ' ' << h.perdidos << ' ' << h.perdida << ' '
                                                << h.conDiario << ' ' << h.mal << std::endl;
    }
    std::cout << cuantas << " kills, " << conDiario << " with a journal, " << enteras
              << " with nothing lost\n";
    EXPECT_GT(conDiario, 0) << "nobody drew anything";
}

}  // namespace
