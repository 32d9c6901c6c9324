// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "model/Anfitrion.h"

// The host of siro-lote: boxes and progress to standard error, the Slate to standard output.
namespace batch {

/// Where the batch program's texts go; the tests put buffers in their place. Bytes are UTF-8. Estandar throws
/// Falla 75 where it can't be written.
struct Salidas {
    std::function<void(std::string_view)> Estandar = [](std::string_view) {};
    std::function<void(std::string_view)> Errores = [](std::string_view) {};
    bool erroresEsTerminal = false;  ///< a progress bar is drawn on Errores only where this is true
};

/// Standard output and standard error of the process.
Salidas SalidasDelProceso();

/// Exit status of a run that an answer of No or a fatal message ended.
inline constexpr int EstadoTerminado = 3;

/// A text that only grows, in pieces: a long one is never copied to make room.
class TextoPorTrozos {
  public:
    void Vacia();
    void Agrega(std::string_view texto);
    [[nodiscard]] std::size_t Largo() const { return largo; }  ///< in bytes
    [[nodiscard]] std::string Entero() const;
    [[nodiscard]] const std::vector<std::string>& Trozos() const { return trozos; }

  private:
    std::vector<std::string> trozos;
    std::size_t largo = 0;
};

/// The world of a run without a window. Boxes and questions go to Errores, one line each; the Slate is a
/// text; the end of the program is thrown as FinDelPrograma with EstadoTerminado.
///
/// Not to be moved once Anfitrion() has been called: the functions of the host refer to it.
class AnfitrionLote {
  public:
    AnfitrionLote(Salidas unasSalidas, bool pizarraMarcada, bool respondeSi);
    AnfitrionLote(const AnfitrionLote&) = delete;
    AnfitrionLote& operator=(const AnfitrionLote&) = delete;

    /// The host that runs get; it lives no longer than this object.
    model::Anfitrion Anfitrion();
    /// Writes the text in the Slate's box, with its CR LF, to Estandar.
    void MuestraPizarra() const;
    /// Takes the progress bar off the terminal.
    void BorraAvance();
    /// Tells of each line that came a thousand times or more how often it wasn't written any more.
    void CuentaRepetidas();

  private:
    void PonPizarraYAvance(model::Anfitrion& anfitrion);
    void Linea(std::string_view titulo, std::string_view texto, std::string_view respuesta);
    void DibujaAvance(std::string_view primero, std::string_view segundo);

    Salidas salidas;
    bool marcaPizarra;
    bool responde;
    TextoPorTrozos pizarra;
    std::unordered_map<std::string, long> veces;  ///< that a line of a box or question came
    std::vector<std::string> muchas;              ///< lines that have come too often to be written
    int porcentaje = 0;                           ///< of the series' storms, done
    int porcentajeVisible = 0;                    ///< what the bar on the terminal shows
    bool avanceVisible = false;
};

/// A box as one line: `[title] text` and what stands behind it, line breaks as " / ", LF at the end. A box
/// without a title bears the program's name.
std::string LineaDeAviso(std::string_view titulo, std::string_view texto, std::string_view respuesta = {});

/// Present local date and time, dd/mm/yyyy hh:mm:ss.
std::string FechaHoraLocal();

}  // namespace batch
