// SPDX-License-Identifier: GPL-3.0-or-later
//
// A save on a real disk that takes no more: what was there stays, on the disk and in memory.

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "MundoDeProyecto.h"
#include "apoyo/Compara.h"
#include "model/Componentes.h"

using namespace model;
using apoyo::BytesDeArchivo;
namespace fs = std::filesystem;

namespace {

const std::string CajaAcceso = SucesoAviso("Error Nro. 75Error de acceso a la ruta o al archivo ,Verifique");

/// Runs a check in a process of its own, whose limits go with it. Returns whether it came to its end and
/// held.
bool EnOtroProceso(const std::function<bool()>& prueba)
{
    const pid_t hijo = fork();
    if (hijo == 0) _exit(prueba() ? 0 : 1);
    int estado = 0;
    waitpid(hijo, &estado, 0);
    return WIFEXITED(estado) && WEXITSTATUS(estado) == 0;
}

/// No file of this process may grow beyond so many bytes: a write beyond is refused, as on a full disk.
void LimitaArchivos(rlim_t bytes)
{
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limite{bytes, bytes};
    setrlimit(RLIMIT_FSIZE, &limite);
}

struct GuardadoEntero : ::testing::Test, MundoDeProyecto {
    GuardadoEntero()
    {
        s.Disco = DiscoDelSistema();
        s.DirProyecto = s.DirTrabajo = s.frmConfigura.Dir1 = carpeta.Camino().string();
        s.NombreProyecto = "Quelmar";
        PonUEHs(5);
        mnu_btn_toolbarGuardaUEHs(s);
        TomaSucesos();
    }
    void PonUEHs(int cuantas)
    {
        s.ColUEHs.Vacia();
        for (int i = 1; i <= cuantas; ++i)
            s.ColUEHs.Agrega({.NombreUEH = "u-" + std::to_string(i), .Area = 250, .numUEH = 0});
        s.NroUEHs = static_cast<std::int16_t>(cuantas);
    }
    std::vector<std::string> Nombres() const
    {
        std::vector<std::string> nombres;
        for (const auto& e : fs::directory_iterator(carpeta.Camino()))
            nombres.push_back(e.path().filename().string());
        std::sort(nombres.begin(), nombres.end());
        return nombres;
    }
    apoyo::CarpetaTemporal carpeta;
};

// 60 UEHs of 18 lines take more than 60 x 18 x 2 bytes.
TEST_F(GuardadoEntero, EnUnDiscoLlenoLaRedVigenteQuedaEnElDiscoYLaNuevaEnMemoria)
{
    const std::string viejo = BytesDeArchivo(carpeta.Ruta("Quelmar_UEHs.vlm"));
    ASSERT_NE(viejo, "");
    EXPECT_TRUE(EnOtroProceso([&] {
        PonUEHs(60);
        const auto antes = s.ColUEHs;
        LimitaArchivos(2000);
        mnu_btn_toolbarGuardaUEHs(s);
        return TomaSucesos() == std::vector<std::string>{CajaAcceso} && s.ColUEHs == antes && s.NroUEHs == 60;
    }));
    EXPECT_EQ(BytesDeArchivo(carpeta.Ruta("Quelmar_UEHs.vlm")), viejo);
    EXPECT_EQ(Nombres(), (std::vector<std::string>{"Quelmar_UEHs.vlm", "Quelmar_VerCau.vlm"}));
}

}  // namespace
