// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "checks/Verifica.h"
#include "forms/Cuadro.h"
#include "forms/Grafico.h"
#include "forms/Rotulo.h"
#include "model/SiroDeclarado.h"

// Rules of the window of the published cases: the table of all of them, the case in hand in words and as a
// chart, the progress of a run.
namespace checks {

inline constexpr std::string_view TituloDlgVerificar = "Verificar";

/// Columns of the table on show; source and inputs are in what is saved besides.
inline constexpr std::size_t NroColumnasDeCaso = 9;

inline constexpr auto RotulosDlgVerificar = std::to_array<forms::FilaRotulo>({
    {"tblCasos", "Casos publicados", "Elija un caso para ver su fuente, sus datos y su gráfico"},
    {"lblFuente", "Fuente:"},
    {"lblEntrada", "Datos:"},
    {"lblCompara", "Se compara:"},
    {"lblCifra", "Cifra:"},
    {"lblTolerancia", "Tolerancia:"},
    {"barAvance", "Avance de la verificación"},
    {"cmdVerificar", "&Verificar de nuevo", "Corre otra vez todos los casos"},
    {"CancelButton", "Cancelar", "Deja la verificación; queda la anterior (Esc)"},
    {"cmdImprimir", "&Imprimir tabla"},
    {"cmdImprimirCaso", "Imprimir &caso", "Imprime la ventana con el gráfico del caso elegido"},
    {"OKButton", "Ce&rrar"},
});

struct dlgVerificar {
    bool abierta = false;
    bool corriendo = false;
    std::size_t hechos = 0, total = 0;  ///< of the run under way
    std::vector<Caso> casos{};          ///< a row of the table each
    forms::Cuadro tblCasos{};
    std::string lblSuma{};  ///< how many, how many out of tolerance, in what time
    std::size_t caso = 0;   ///< the one in hand; the number of cases where there is none
    std::string lblCaso{}, lblFuente{}, lblEntrada{}, lblCompara{}, lblCifra{}, lblTolerancia{};
    forms::Grafico Grafico{};
};

/// A run begins; what there is of an earlier one stays until it ends.
void Empieza(dlgVerificar& f);
/// So many cases of it are done.
void Avanza(dlgVerificar& f, std::size_t hechos, std::size_t total);
/// It is given up: the cases of the run before stay.
void Cancela(dlgVerificar& f);
/// It has ended, after so many seconds.
void Termina(dlgVerificar& f, const model::Siro& s, std::vector<Caso> casos, double segundos);

/// Takes a case in hand, by its row.
void tblCasos_Mueve(dlgVerificar& f, std::size_t fila);
/// A heading was clicked.
void AlPulsarEncabezado(dlgVerificar& f, int columna);

/// The table for the printer: without the long texts, which don't fit into the width of a page; they stand
/// above it.
forms::Planilla ParaImprimir(const dlgVerificar& f);

void OKButton(dlgVerificar& f);

/// Figures against ours, a category per figure; the curve around a figure that stands alone.
forms::Grafico GraficoDeCaso(const Caso& caso);

}  // namespace checks
