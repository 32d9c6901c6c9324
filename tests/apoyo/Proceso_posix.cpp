// SPDX-License-Identifier: GPL-3.0-or-later
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

#include "apoyo/Proceso.h"

namespace apoyo {

Fin EnOtroProceso(const std::function<void()>& rutina)
{
    const pid_t hijo = fork();
    if (hijo == 0) {
        rutina();
        _exit(0);
    }
    int estado = 0;
    waitpid(hijo, &estado, 0);
    if (WIFSIGNALED(estado) && WTERMSIG(estado) == SIGKILL) return Fin::Matado;
    return WIFEXITED(estado) && WEXITSTATUS(estado) == 0 ? Fin::Entero : Fin::Mal;
}

void Muere()
{
    kill(getpid(), SIGKILL);
    std::abort();
}

}  // namespace apoyo
