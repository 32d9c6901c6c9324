// SPDX-License-Identifier: GPL-3.0-or-later
//
// The real siro-lote.exe: its command line in UTF-16, its standard streams byte by byte.

#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <string>

#include "batch/ProyectoDePrueba.h"
#include "model/Ancho_windows.h"

namespace {

using prueba::ProyectoDePrueba;

struct Salida {
    DWORD estado = ~0U;
    std::string texto{};
};

/// Runs it with standard output and error in one pipe.
Salida Corre(const std::string& argumentos)
{
    SECURITY_ATTRIBUTES herencia{sizeof herencia, nullptr, TRUE};
    HANDLE lee = nullptr, escribe = nullptr;
    CreatePipe(&lee, &escribe, &herencia, 0);
    SetHandleInformation(lee, HANDLE_FLAG_INHERIT, 0);
    STARTUPINFOW inicio{};
    inicio.cb = sizeof inicio;
    inicio.dwFlags = STARTF_USESTDHANDLES;
    inicio.hStdOutput = inicio.hStdError = escribe;
    PROCESS_INFORMATION proceso{};
    std::wstring orden = model::Ancho("siro-lote " + argumentos);
    Salida salida;
    const BOOL bien = CreateProcessW(model::Ancho(SIRO_LOTE).c_str(), orden.data(), nullptr, nullptr, TRUE, 0,
                                     nullptr, nullptr, &inicio, &proceso);
    CloseHandle(escribe);
    std::array<char, 4096> trozo{};
    for (DWORD n = 0; bien != 0 && ReadFile(lee, trozo.data(), trozo.size(), &n, nullptr) != 0 && n > 0;)
        salida.texto.append(trozo.data(), n);
    CloseHandle(lee);
    if (bien == 0) return salida;
    WaitForSingleObject(proceso.hProcess, INFINITE);
    GetExitCodeProcess(proceso.hProcess, &salida.estado);
    CloseHandle(proceso.hThread);
    CloseHandle(proceso.hProcess);
    return salida;
}

TEST(LoteDeWindows, LaPizarraSaleByteAByte)
{
    const ProyectoDePrueba p;
    const Salida salida = Corre("una \"" + p.Conf() + "\" --trabajo \"" + p.Dir() + "\" --pizarra");
    EXPECT_EQ(salida.estado, 0U) << salida.texto;
    EXPECT_NE(salida.texto.find("\r\n"), std::string::npos);
    EXPECT_EQ(salida.texto.find("\r\r\n"), std::string::npos);
    EXPECT_NE(salida.texto.find("ó"), std::string::npos) << "UTF-8";
}

TEST(LoteDeWindows, LasPalabrasSonDeCualquierLetraYLasBarrasDeCualquierLado)
{
    const ProyectoDePrueba p;
    std::string csv = p.Dir() + "/año – река 😀.csv";
    const Salida salida =
        Corre("una \"" + p.Conf() + "\" --trabajo \"" + p.Dir() + "\" --resultados \"" + csv + "\"");
    EXPECT_EQ(salida.estado, 0U) << salida.texto;
    EXPECT_EQ(p.Lee("año – река 😀.csv").substr(0, 33), "componente,p,minutos,qentra,qsale");
    const Salida falta = Corre("una /no/esta/Ñandú_Conf.vlm");
    EXPECT_EQ(falta.estado, 1U);
    EXPECT_NE(falta.texto.find(":\\no\\esta\\Ñandú_Conf.vlm\n"), std::string::npos) << falta.texto;
}

TEST(LoteDeWindows, UnDispositivoNoEsArchivo)
{
    const ProyectoDePrueba p;
    const Salida salida = Corre("una \"" + p.Conf() + "\" --trabajo \"" + p.Dir() + "\" --resultados NUL");
    EXPECT_EQ(salida.estado, 1U);
    EXPECT_NE(salida.texto.find("Windows reserva ese nombre para un dispositivo."), std::string::npos)
        << salida.texto;
}

}  // namespace
