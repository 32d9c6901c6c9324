// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Programa_ventana.h"

int main(int argc, char** argv)
{
    return shell::Programa(argc, argv);
}
