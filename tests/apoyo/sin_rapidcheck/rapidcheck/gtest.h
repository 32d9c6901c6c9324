// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>
#include <rapidcheck.h>

#define RC_GTEST_PROP(Grupo, Nombre, Argumentos)                                \
    static void Grupo##_##Nombre##_propiedad Argumentos;                        \
    TEST(Grupo, Nombre)                                                         \
    {                                                                           \
        EXPECT_EQ(rc::Prueba(std::function(Grupo##_##Nombre##_propiedad)), ""); \
    }                                                                           \
    static void Grupo##_##Nombre##_propiedad Argumentos
