// SPDX-License-Identifier: GPL-3.0-or-later
//
// The disk as Windows has it: names in UTF-16, in capitals or not, files that another program holds.

#include <gtest/gtest.h>
// The other can't do without the first.
// clang-format off
#include <windows.h>
#include <sddl.h>
// clang-format on

#include <aclapi.h>

#include <string>
#include <vector>

#include "apoyo/Compara.h"
#include "model/Ancho_windows.h"
#include "model/Camino.h"
#include "model/Disco.h"
#include "model/Falla.h"
#include "model/LlamadasDisco.h"
#include "model/Sistema.h"

using namespace model;

namespace {

constexpr std::string_view SoloLectura = "El archivo es de solo lectura.";
constexpr std::string_view Ocupado = "Otro programa tiene abierto el archivo. Ciérrelo y vuelva a intentar.";

template <typename F>
Falla FallaQueDa(F&& rutina)
{
    try {
        rutina();
    } catch (const Falla& falla) {
        return falla;
    }
    return {};
}

struct DiscoDeWindows : ::testing::Test {
    std::string En(std::string_view nombre) const { return Ruta(raiz, nombre); }
    void Pon(std::string_view nombre, std::string_view bytes) const { disco.Escribe(En(nombre), bytes); }
    std::string Lee(std::string_view nombre) const { return disco.Lee(En(nombre)); }

    apoyo::CarpetaTemporal carpeta;
    std::string raiz = TextoDe(carpeta.Camino());
    Disco disco = DiscoDelSistema();
};

/// A file that another program has open, and lets others do with it what `comparte` tells.
struct Abierto {
    Abierto(const std::string& ruta, DWORD comparte)
        : manija(CreateFileW(Ancho(ruta).c_str(), GENERIC_READ, comparte, nullptr, OPEN_EXISTING, 0, nullptr))
    {
    }
    ~Abierto() { CloseHandle(manija); }
    Abierto(const Abierto&) = delete;
    Abierto& operator=(const Abierto&) = delete;
    HANDLE manija;
};

bool SeAbreParaEscribir(const std::string& ruta)
{
    const HANDLE manija =
        CreateFileW(Ancho(ruta).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (manija == INVALID_HANDLE_VALUE) return false;
    CloseHandle(manija);
    return true;
}

TEST_F(DiscoDeWindows, ConNombresDeCualquierLetra)
{
    const std::string carpetaRara = En("Ñandú – Проект 河 😀");
    disco.CreaDirectorio(carpetaRara);
    EXPECT_TRUE(disco.HayDirectorio(carpetaRara));
    const std::string uno = Ruta(carpetaRara, "Año é_UEHs.vlm"), otro = Ruta(carpetaRara, "река.vlm");
    disco.Escribe(uno, "a\r\n\x1A");
    disco.Agrega(uno, "b\n");
    EXPECT_EQ(disco.Lee(uno),
              "a\r\n\x1A"
              "b\n");
    disco.Reemplaza({{uno, "nuevo"}, {otro, "otro"}});
    disco.Copia(uno, Ruta(carpetaRara, "copia.vlm"));
    EXPECT_EQ(disco.Lista(carpetaRara),
              (std::vector<std::string>{"Año é_UEHs.vlm", "copia.vlm", "река.vlm"}));
    EXPECT_EQ(disco.Lee(otro), "otro");
    disco.Borra(otro);
    EXPECT_EQ(FallaQueDa([&] { disco.Lee(otro); }).numero, NumeroFalla::ArchivoNoEsta);
    EXPECT_TRUE(disco.Recupera(carpetaRara).completados.empty());
}

TEST_F(DiscoDeWindows, MayusculasYMinusculasSonElMismoArchivo)
{
    Pon("Quelmar_UEHs.vlm", "viejo");
    EXPECT_EQ(Lee("QUELMAR_uehs.VLM"), "viejo");
    disco.Reemplaza({{En("quelmar_UEHS.vlm"), "nuevo"}});
    EXPECT_EQ(disco.Lista(raiz).size(), 1U);
    EXPECT_EQ(Lee("Quelmar_UEHs.vlm"), "nuevo");
    EXPECT_EQ(FallaQueDa([&] { disco.Copia(En("Quelmar_UEHs.vlm"), En("QUELMAR_UEHS.VLM")); }).numero,
              NumeroFalla::AccesoRuta)
        << "onto itself";
}

TEST_F(DiscoDeWindows, LosDeSoloLecturaQuedanYSeDicePorQue)
{
    Pon("a", "viejo");
    Pon("b", "otro");
    SetFileAttributesW(Ancho(En("a")).c_str(), FILE_ATTRIBUTE_READONLY);
    const Falla esperada{NumeroFalla::AccesoRuta, SoloLectura};
    EXPECT_EQ(FallaQueDa([&] { disco.Reemplaza({{En("b"), "x"}, {En("a"), "x"}}); }), esperada);
    EXPECT_EQ(FallaQueDa([&] { disco.Borra(En("a")); }), esperada);
    EXPECT_EQ(Lee("a"), "viejo");
    EXPECT_EQ(Lee("b"), "otro");
    EXPECT_EQ(disco.Lista(raiz).size(), 2U) << "a temporary is left";
    // Wine leaves it to the disk under it, where an administrator may write all.
    if (!SeAbreParaEscribir(En("a"))) {
        EXPECT_EQ(FallaQueDa([&] { Pon("a", "x"); }), esperada);
        EXPECT_EQ(FallaQueDa([&] { disco.Agrega(En("a"), "x"); }), esperada);
    }
    SetFileAttributesW(Ancho(En("a")).c_str(), FILE_ATTRIBUTE_NORMAL);
    disco.Reemplaza({{En("a"), "nuevo"}});
    EXPECT_EQ(Lee("a"), "nuevo");
}

TEST_F(DiscoDeWindows, LosQueOtroTieneAbiertosQuedanYSeDicePorQue)
{
    Pon("a", "viejo");
    Pon("b", "otro");
    const Falla esperada{NumeroFalla::AccesoRuta, Ocupado};
    {
        const Abierto ajeno(En("b"), FILE_SHARE_READ);
        EXPECT_EQ(FallaQueDa([&] { disco.Reemplaza({{En("a"), "x"}, {En("b"), "x"}}); }), esperada);
        EXPECT_EQ(FallaQueDa([&] { Pon("b", "x"); }), esperada);
        EXPECT_EQ(FallaQueDa([&] { disco.Borra(En("b")); }), esperada);
        EXPECT_EQ(Lee("b"), "otro") << "reading is shared";
    }
    {
        const Abierto ajeno(En("b"), 0);
        EXPECT_EQ(FallaQueDa([&] { disco.Lee(En("b")); }), esperada);
    }
    EXPECT_EQ(Lee("a"), "viejo");
    EXPECT_EQ(Lee("b"), "otro");
    EXPECT_EQ(disco.Lista(raiz).size(), 2U) << "a temporary is left";
    disco.Reemplaza({{En("a"), "x"}, {En("b"), "y"}});
    EXPECT_EQ(Lee("b"), "y");
}

TEST_F(DiscoDeWindows, LoQueWindowsNoTieneSeDicePorQue)
{
    for (const char* nombre : {"NUL", "con.vlm", "a.", "a ", "a:b", "a*", "a?b"}) {
        const Falla falla = FallaQueDa([&] { Pon(nombre, "x"); });
        EXPECT_EQ(falla.numero, NumeroFalla::AccesoRuta) << nombre;
        EXPECT_NE(falla.nota, "") << nombre;
        EXPECT_FALSE(disco.HayDirectorio(En(nombre))) << nombre;
    }
    EXPECT_EQ(FallaQueDa([&] { Pon(std::string(250, 'a'), "x"); }).numero, NumeroFalla::AccesoRuta);
    EXPECT_EQ(FallaQueDa([&] { Pon("\xFF\xFE", "x"); }).numero, NumeroFalla::AccesoRuta) << "no UTF-8";
    EXPECT_EQ(disco.Lista(raiz), std::vector<std::string>{});
}

/// Rights and owner of a file as one text.
std::wstring Derechos(const std::string& ruta)
{
    PSECURITY_DESCRIPTOR todo = nullptr;
    constexpr SECURITY_INFORMATION Cuales = OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION;
    GetNamedSecurityInfoW(Ancho(ruta).c_str(), SE_FILE_OBJECT, Cuales, nullptr, nullptr, nullptr, nullptr,
                          &todo);
    wchar_t* texto = nullptr;
    ConvertSecurityDescriptorToStringSecurityDescriptorW(todo, SDDL_REVISION_1, Cuales, &texto, nullptr);
    std::wstring derechos = texto == nullptr ? L"" : texto;
    LocalFree(texto);
    LocalFree(todo);
    return derechos;
}

TEST_F(DiscoDeWindows, DerechosYOcultoQuedan)
{
    Pon("a", "viejo");
    PSECURITY_DESCRIPTOR propios = nullptr;
    ASSERT_NE(ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:P(A;;FA;;;OW)(A;;FA;;;BA)(A;;FR;;;WD)",
                                                                   SDDL_REVISION_1, &propios, nullptr),
              0);
    ASSERT_NE(SetFileSecurityW(Ancho(En("a")).c_str(), DACL_SECURITY_INFORMATION, propios), 0);
    LocalFree(propios);
    SetFileAttributesW(Ancho(En("a")).c_str(), FILE_ATTRIBUTE_HIDDEN);
    const std::wstring antes = Derechos(En("a"));
    ASSERT_NE(antes, L"");
    disco.Reemplaza({{En("a"), "nuevo"}});
    EXPECT_EQ(Lee("a"), "nuevo");
    EXPECT_EQ(Derechos(En("a")), antes);
    EXPECT_NE(GetFileAttributesW(Ancho(En("a")).c_str()) & FILE_ATTRIBUTE_HIDDEN, 0U);
}

TEST_F(DiscoDeWindows, EnSitioSeAlargaYSeAcorta)
{
    const LlamadasDisco llamadas = LlamadasDelSistema();
    Pon("a", "viejo");
    for (const std::string bytes : {"mucho más largo que antes", "corto", ""}) {
        EXPECT_FALSE(llamadas.Sobrescribe(Camino(En("a")), bytes));
        EXPECT_EQ(Lee("a"), bytes);
    }
    EXPECT_TRUE(llamadas.Sobrescribe(Camino(En("b")), "x")) << "it isn't there";
    EXPECT_EQ(llamadas.Crea(Camino(En("a")), "x", {}), std::errc::file_exists);
}

TEST(LlamadasDeWindows, UnProcesoViveHastaSuFin)
{
    const LlamadasDisco llamadas = LlamadasDelSistema();
    EXPECT_TRUE(llamadas.Vive(llamadas.proceso));
    EXPECT_FALSE(llamadas.Vive(0));
    EXPECT_FALSE(llamadas.Vive(-1));
    STARTUPINFOW inicio{};
    inicio.cb = sizeof inicio;
    PROCESS_INFORMATION otro{};
    std::wstring orden = L"cmd.exe /c exit 0";
    ASSERT_NE(CreateProcessW(nullptr, orden.data(), nullptr, nullptr, FALSE, CREATE_SUSPENDED, nullptr,
                             nullptr, &inicio, &otro),
              0);
    const auto numero = static_cast<long>(otro.dwProcessId);
    EXPECT_TRUE(llamadas.Vive(numero));
    TerminateProcess(otro.hProcess, 0);
    WaitForSingleObject(otro.hProcess, INFINITE);
    CloseHandle(otro.hThread);
    CloseHandle(otro.hProcess);
    EXPECT_FALSE(llamadas.Vive(numero));
}

TEST(SistemaDeWindows, LasRutasAbsolutasLlevanBarrasInversas)
{
    EXPECT_EQ(RutaAbsoluta("C:/a/ñ"), "C:\\a\\ñ");
    EXPECT_EQ(RutaAbsoluta("//servidor/común/a"), "\\\\servidor\\común\\a");
    EXPECT_EQ(RutaAbsoluta("Y:\\a\\..\\b"), "Y:\\a\\..\\b") << "as it stands";
    const std::string unidad = RutaAbsoluta("a").substr(0, 2);
    EXPECT_EQ(RutaAbsoluta("/a/b"), unidad + "\\a\\b");
    EXPECT_EQ(RutaAbsoluta("\\"), unidad + "\\");
    EXPECT_EQ(RutaAbsoluta("NUL"), "NUL") << "refused by whoever opens it";
}

TEST(SistemaDeWindows, ElAmbienteEsElAncho)
{
    SetEnvironmentVariableW(L"SIRO_PRUEBA", L"C:\\Ñandú\\река");
    EXPECT_EQ(AmbienteDelProceso()("SIRO_PRUEBA"), "C:\\Ñandú\\река");
    EXPECT_EQ(DatosDelUsuario([](const std::string& nombre) { return "<" + nombre + ">"; }),
              "<LOCALAPPDATA>");
    const std::string larga(1000, 'x');
    SetEnvironmentVariableW(L"SIRO_PRUEBA", Ancho(larga).c_str());
    EXPECT_EQ(AmbienteDelProceso()("SIRO_PRUEBA"), larga);
}

}  // namespace
