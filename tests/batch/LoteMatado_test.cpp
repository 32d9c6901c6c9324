// SPDX-License-Identifier: GPL-3.0-or-later
//
// siro-lote killed while it rewrites the configuration of a project that has moved.

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <string>
#include <thread>

#include "batch/ProyectoDePrueba.h"

namespace {

namespace fs = std::filesystem;
using prueba::ProyectoDePrueba;

/// Starts it on the project; `limite`: bytes that none of its files may grow beyond.
pid_t Arranca(const ProyectoDePrueba& p, rlim_t limite = RLIM_INFINITY)
{
    const pid_t hijo = fork();
    if (hijo != 0) return hijo;
    const rlimit archivos{limite, limite};
    setrlimit(RLIMIT_FSIZE, &archivos);
    if (freopen("/dev/null", "w", stdout) == nullptr || freopen("/dev/null", "w", stderr) == nullptr)
        _exit(1);
    execl(SIRO_LOTE, SIRO_LOTE, "una", p.Conf().c_str(), "--trabajo", p.Dir().c_str(), nullptr);
    _exit(1);
}

bool Matado(pid_t hijo)
{
    int estado = 0;
    waitpid(hijo, &estado, 0);
    return WIFSIGNALED(estado);
}

bool HayRestos(const std::string& dir)
{
    for (const auto& entrada : fs::directory_iterator(dir))
        if (entrada.path().filename().string().starts_with(".siro-")) return true;
    return false;
}

TEST(LoteMatado, LaConfiguracionEsLaViejaOLaNuevaYElProximoNoDejaRestos)
{
    const ProyectoDePrueba p;
    const std::string nueva = p.Lee("Mio_Conf.vlm");
    p.Cambia("Mio_Conf.vlm", "\"" + p.Dir() + "\"", "\"/en otra parte\"");
    const std::string vieja = p.Lee("Mio_Conf.vlm");
    int muertes = 0;
    for (int n = 0; n < 25; ++n) {
        p.Escribe("Mio_Conf.vlm", vieja);
        const pid_t hijo = Arranca(p);
        std::this_thread::sleep_for(std::chrono::milliseconds(2 * n));
        kill(hijo, SIGKILL);
        muertes += Matado(hijo);
        const std::string queda = p.Lee("Mio_Conf.vlm");
        EXPECT_TRUE(queda == vieja || queda == nueva) << 2 * n << " ms";
    }
    EXPECT_GE(muertes, 1);
    EXPECT_FALSE(Matado(Arranca(p)));
    EXPECT_EQ(p.Lee("Mio_Conf.vlm"), nueva);
    EXPECT_FALSE(HayRestos(p.Dir()));
}

// The system would end a program that writes beyond the limit of its shell: it must be a refusal like others.
TEST(LoteMatado, ElLimiteDeArchivosDelSistemaNoLoMata)
{
    const ProyectoDePrueba p;
    p.Cambia("Mio_Conf.vlm", "\"" + p.Dir() + "\"", "\"/en otra parte\"");
    const std::string vieja = p.Lee("Mio_Conf.vlm");
    EXPECT_FALSE(Matado(Arranca(p, 100)));
    EXPECT_EQ(p.Lee("Mio_Conf.vlm"), vieja);
    EXPECT_FALSE(HayRestos(p.Dir()));
}

}  // namespace
