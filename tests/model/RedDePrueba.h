// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "ProyectoDePrueba.h"
#include "model/Componentes.h"
#include "model/Siro.h"

// The component files of the tests: records as they stand in the file, networks made of them, and the boxes
// that readers and writers show.

using Renglones = std::vector<std::string>;

/// The box of a statement at fault: number and description with nothing between them.
inline model::Mensaje CajaDeFalla(const std::string& numero, const std::string& descripcion)
{
    return Llano("Error Nro. " + numero + descripcion + " ,Verifique");
}
inline const model::Mensaje CajaTipos = CajaDeFalla("13", "No coinciden los tipos");
inline const model::Mensaje CajaDesborde = CajaDeFalla("6", "Desbordamiento");
inline const model::Mensaje CajaSubindice = CajaDeFalla("9", "El subíndice está fuera del intervalo");
inline const model::Mensaje CajaAcceso = CajaDeFalla("75", "Error de acceso a la ruta o al archivo");
inline const model::Mensaje CajaSinRuta = CajaDeFalla("76", "No se encontró la ruta de acceso");
inline const model::Mensaje CajaDanado{
    "Hay problemas con el archivo de datos o el archivo está dañado. Si es un prorgamador avanzado, intente "
    "ingresar directamente al archivo y corregir el problema",
    "", model::Icono::Exclamacion};

inline model::Mensaje CajaGuardado(const std::string& ruta)
{
    return Llano(
        "Los datos de componentes de Unidades Hidrológicas del proyecto se han guardado correctamente en el "
        "archivo " +
        ruta);
}

// --- records as they stand in the file ---

// clang-format off
inline Renglones RegistroCauce(const std::string& nombre, int vertices = 0, const std::string& destino = "",
                               int numero = 1, int primerPar = 1)
{
    return {std::to_string(numero), '"' + nombre + '"', std::to_string(vertices), std::to_string(primerPar),
            '"' + destino + '"', "1.25", "800", "1", "20.5", "0.2", "#TRUE#"};
}

inline Renglones RegistroUEH(const std::string& nombre, const std::string& destino = "")
{
    return {"1", '"' + nombre + '"', "250.5", "\"ladera, norte\"", "1500", "0.75", "\"Directo\"", "100", "110.5",
            "90", "95.25", '"' + destino + '"', "0.5", "0.25", "30", "0.125", "12", "5.5"};
}

inline Renglones RegistroLago(const std::string& nombre, const std::string& destino = "")
{
    return {"1", '"' + nombre + '"', "\"mallin\"", "\"Runge Kutta\"", "400", "410.5", "390", "395.25",
            '"' + destino + '"', "45", "1.5"};
}
// clang-format on

/// 56 fields, each number its own: FQa 101 to 108, FQb 201 to 208, FQc 305 to 308, FQmin 401.., FQMax 501..
inline Renglones RegistroRepresa(const std::string& nombre, const std::string& destino = "")
{
    Renglones r{"1", '"' + nombre + '"', "300", "310", "\"Piscina Nivelada\"", "290", "295.5"};
    r.insert(r.end(), {'"' + destino + '"', "#TRUE#", "1", "0", "1", "0", "1", "0", "1", "0"});
    const auto pon = [&](int desde, int hasta) {
        for (int i = desde; i <= hasta; ++i)
            r.push_back(std::to_string(i));
    };
    pon(101, 108);
    pon(201, 208);
    pon(305, 308);
    r.insert(r.end(), {"60", "0.3"});
    pon(401, 408);
    pon(501, 508);
    r.push_back("2.5");
    return r;
}

/// The groups of a component file in its order.
struct ArchivoDeRed {
    std::string nombre = "\"Arroyo\"";
    std::vector<Renglones> cauces{}, uehs{}, represas{}, lagos{};

    [[nodiscard]] Renglones Campos() const
    {
        Renglones r{nombre};
        for (const auto* grupo : {&cauces, &uehs, &represas, &lagos}) {
            r.push_back(std::to_string(grupo->size()));
            for (const Renglones& registro : *grupo)
                r.insert(r.end(), registro.begin(), registro.end());
        }
        return r;
    }
    [[nodiscard]] std::string Bytes() const { return Junta(Campos()); }
};

/// Two reaches of 2 and 3 vertices, a unit, a dam and a lake.
inline ArchivoDeRed RedDeEjemplo()
{
    return {.cauces = {RegistroCauce("c-1", 2, "c-2", 1, 1), RegistroCauce("c-2", 3, "", 2, 3)},
            .uehs = {RegistroUEH("u-1", "c-1")},
            .represas = {RegistroRepresa("r-1", "c-2")},
            .lagos = {RegistroLago("l-1", "c-1")}};
}
inline constexpr std::string_view VerticesDeEjemplo = "1,2\r\n3.5,-4\r\n5,6\r\n7,8\r\n9,10.25\r\n";

/// A program that reads and saves networks.
struct ConRed : ::testing::Test, ProyectoDePrueba {
    void Lee(const std::string& uehs, std::string_view verCau)
    {
        Pon("_UEHs.vlm", uehs);
        Pon("_VerCau.vlm", verCau);
        model::LeeUEHs(s);
    }
    void LeeEjemplo() { Lee(RedDeEjemplo().Bytes(), VerticesDeEjemplo); }
    std::string Uehs() { return Bytes("_UEHs.vlm"); }
    std::string VerCau() { return Bytes("_VerCau.vlm"); }
    std::vector<int> Cuentas()
    {
        return {s.Red.NroCauces(), s.Red.NroUEHs(), s.Red.NroRepresas(), s.Red.NroLagos()};
    }
    std::vector<int> Tamanos()
    {
        return {s.Red.ColCauces.Cuenta(), s.Red.ColUEHs.Cuenta(), s.Red.ColRepresas.Cuenta(),
                s.Red.ColLagos.Cuenta()};
    }
};
