// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "model/Anfitrion.h"
#include "model/Arreglo.h"
#include "model/Cauce.h"
#include "model/Coleccion.h"
#include "model/Configuracion.h"
#include "model/Disco.h"
#include "model/Lago.h"
#include "model/Represa.h"
#include "model/UEH.h"
#include "model/Vigilancia.h"

namespace model {

inline constexpr int MaxUEHs = 70;
inline constexpr int MaxCauces = 70;
inline constexpr int MaxLagos = 70;
inline constexpr int MaxRepresas = 20;
inline constexpr int MaxNroVertices = 100;  ///< upper bound of NroVertices
inline constexpr int MaxSalidas = 10;       ///< outfalls whose names are kept

/// Input form of the rain.
enum class FormaLluvia : std::int16_t { Escrita = 0, DeLista = 1, SeriePDR = 2, PorUEH = 3, Real = 4 };

/// The Represa or Lago on which the lookups work.
struct ComponenteActual {
    enum class Clase { Ninguna, Represa, Lago };
    Clase clase = Clase::Ninguna;
    int item = 0;  ///< place in its collection, from 1
    bool operator==(const ComponenteActual&) const = default;
};

/// Run-wide state of the program. A plain value: a copy is a second, independent program.
///
/// Counts and minutes are 16-bit, model values 32-bit floats: their rounding and overflow are behaviour.
/// In result arrays a row is the component's place in Secuencia (1..NroUEHs the UEHs by number, above them
/// the order of computation of the last run), a column an output step or a storm.
struct Siro {
    model::Anfitrion Anfitrion{};
    model::Disco Disco = DiscoDelSistema();

    // --- components ---
    Coleccion<UEH, MaxUEHs> ColUEHs{};
    Coleccion<Cauce, MaxCauces> ColCauces{};
    Coleccion<Lago, MaxLagos> ColLagos{};
    Coleccion<Represa, MaxRepresas> ColRepresas{};
    std::int16_t NroUEHs = 0, NroCauces = 0, NroLagos = 0, NroRepresas = 0;
    /// The component with a number. Falla 9 outside the array, Falla 91 for an empty slot.
    UEH& UEHs(int n) { return ColUEHs.Ranura(n); }
    Cauce& Cauces(int n) { return ColCauces.Ranura(n); }
    Lago& Lagos(int n) { return ColLagos.Ranura(n); }
    Represa& Represas(int n) { return ColRepresas.Ranura(n); }

    // --- drawing of the reaches ---
    Arreglo<std::int16_t> NroVertices = Ceros<std::int16_t>(MaxNroVertices);  ///< by Cauce number
    Matriz<float> XVertice{}, YVertice{};  ///< row: Cauce number 0..70; column: vertex from 1 [drawing units]
    std::int16_t CauceSel = 0, CauceAnterior = 0, UEHSel = 0, RepresaSel = 0, LagoSel = 0;  ///< 0: none
    std::int16_t VerticeSel = 0;  ///< grabbed vertex of CauceSel

    // --- order of computation ---
    std::int16_t NroComponentes = 0;
    std::vector<std::string> Secuencia{};  ///< names 1..NroComponentes; slot 0 unused
    std::int16_t NroSalidas = 0;
    std::array<std::string, MaxSalidas + 1> Salidas{};  ///< names of the outfalls, from 1
    ComponenteActual CompActual{};

    // --- storm and steps ---
    float PpTormenta = 0;                          ///< depth P [mm]
    std::int16_t DurTormenta = 0;                  ///< duration D [min]
    std::int16_t RecTormenta = 0;                  ///< recurrence R [years]
    std::int16_t FormaPp = 0;                      ///< FormaLluvia
    std::int16_t DistriPp = 0;                     ///< temporal distribution 0..7
    std::int16_t TablaPDR = 0;                     ///< P-D-R table in use, 0..3
    std::int16_t PasoPp = 10;                      ///< model step [min]
    std::int16_t PasoQ = 10;                       ///< output step of flows [min]
    Arreglo<float> PpUEH = Ceros<float>(MaxUEHs);  ///< rainfall of each UEH in this storm [mm], by number
    Arreglo<float> PpReal = Ceros<float>(0);       ///< depth of each block of the hyetograph [mm], from 1
    std::int16_t NroPpReal = 0;                    ///< blocks in PpReal
    std::int16_t NroSeriePDR = 0;                  ///< storms of the series
    std::int16_t IndSerie = 0;                     ///< storm under computation, 1 in a single run
    Arreglo<float> SerieP{};                       ///< [mm], from 1
    Arreglo<std::int16_t> SerieD{}, SerieR{};      ///< [min], [years], from 1
    float N0Dur = 10;                              ///< time simulated beyond the storm's end [min]
    std::int16_t NroPasosQ = 0;                    ///< output steps of the run

    // --- tables of rain shared by all projects ---
    std::array<std::int16_t, 4> NroFilasTabla{};  ///< rows of tables 0..3, of whichever file was read last
    Matriz<float> DisPerso{};  ///< row: personal table 0..3; column: period from 1 [% of P]
    std::array<std::int16_t, 4> DurMinPer{},
        DurMaxPer{};  ///< durations for which a personal table holds [min]
    std::array<std::string, 4> NotasDisPer{};
    Matriz<std::int16_t> TablasP{}, TablasD{}, TablasR{};  ///< row: P-D-R table 0..4; column: storm from 1
    std::array<std::string, 4> NotasPDR{};

    // --- hyetograph ---
    std::int16_t NroBloquesPp = 0;            ///< blocks of the temporal distribution
    Arreglo<float> PpAcum = Ceros<float>(0);  ///< cumulative [%], then cumulative depth at a block's end [mm]
    Arreglo<float> IntensidadPp = Ceros<float>(0);  ///< percentage of a block, then its intensity [mm/min]
    float PpAcumPrevia = 0;                         ///< depth delivered so far by PpDelPaso [mm]

    // --- results ---
    Matriz<float> QSale{};          ///< outflow [m3/s]; column: output step
    Matriz<float> QEntra{};         ///< inflow [m3/s]; rows NroUEHs+1..NroComponentes+1; column: output step
    Matriz<float> PpUEHPaso{};      ///< rainfall [mm]; row: UEH; column: model step
    Matriz<float> QMax{};           ///< peak outflow [m3/s]; column: storm
    Matriz<std::int32_t> EscUEH{};  ///< runoff volume without base flow [m3]; row: UEH; column: storm
    Matriz<float> CoefEscUEH{};     ///< runoff coefficient [%]; row: UEH; column: storm
    Arreglo<std::int32_t> EscTotal{};      ///< runoff volume of the basin [m3], by storm
    Arreglo<float> CoefEscTotal{};         ///< runoff coefficient of the basin [%], by storm
    Arreglo<float> VolUEH{};               ///< volume at the foot of each UEH [m3]
    Arreglo<std::int32_t> VolBaseUEH{};    ///< base volume of each UEH [m3]
    Arreglo<float> CoefUEH{};              ///< runoff coefficient of each UEH in this storm [%]
    Arreglo<float> PasosInfiltra{};        ///< infiltration clock of each UEH [model steps]
    Matriz<float> HRepresa{}, SRepresa{};  ///< height [m], storage [m3]; row: Represa number; column: step
    Matriz<float> HLago{}, SLago{};        ///< the same of the Lagos
    float VolEntra = 0, VolSale = 0;       ///< volumes of the component routed last [m3]
    float HActual = 0, SActual = 0;        ///< height [m] and storage [m3] that any routing worked out last
    float ACalc = 0;                       ///< surface of the last Runge-Kutta stage [ha]
    std::int16_t IndPaso = 0;

    // --- tables of Represas and Lagos; row: component number; column: row of the table, from 1 ---
    Arreglo<std::int16_t> RepresaFilasHAS{}, RepresaFilasHQ{}, LagoFilas{};  ///< rows of each table
    Matriz<float> RepresaH{}, RepresaA{};                                    ///< height [m], area [ha]
    Matriz<std::int32_t> RepresaS{};                                         ///< storage [m3]
    Matriz<float> RepresaQH{}, RepresaQQ{};                                  ///< height [m], outflow [m3/s]
    Matriz<float> LagoH{}, LagoA{}, LagoQ{};
    Matriz<std::int32_t> LagoS{};
    Matriz<std::int16_t> FQActiva{};  ///< row: Represa number; column: outflow function from 1
    /// Coefficients by Represa number and function from 1; kinds 1..5 are a, b, c, H min, H Max.
    std::vector<std::array<std::array<float, 6>, NroFuncionesFQ + 1>> FQCoef{};

    // --- configuration ---
    /// Directory of the executable, or the user's own where that one can't be written; the host sets it.
    std::string DirEjecutable{};
    std::string DirTrabajo{};       ///< the program's own directory: shared tables, result files
    std::string DirProyecto{};      ///< directory of the project's files
    std::string DirProyectoConf{};  ///< the same as the configuration tells it
    std::string DriveProyecto{};
    std::string NombreProyecto{};  ///< empty: no project open
    std::string ArchivoTemp{};     ///< file name last composed by a file operation
    std::string TituloProyecto{}, Ubicacion{}, Cuenca{}, Subcuenca{}, Operador{};
    std::string FechaProyecto = "01/02/2006";
    std::string DirNv{};
    std::int16_t CheckDistriPp = 1;
    std::string NombreArchivoConf{};
    std::int16_t ImagenDibujo = 0;
    std::string ArchivoImagenDibujo = "Ninguno";  ///< background image of the project
    std::string ArchivoImagen{};                  ///< the editor's copy
    double EscalaImagen = 0;                      ///< zoom of the image [%]
    std::string TextoS{};
    bool Optiona = false, Optionb = false, Optionc = false;
    float ImagenX0 = 0, ImagenY0 = 0;  ///< shift of the image [pixels]
    bool OptionMin = false, OptionHr = false, Optionm3 = false, OptionLt = false;
    std::string MaxUEHsPixel = "800";
    std::string EscalaDibujo = "0";                                     ///< scale of the image [m/pixel]
    std::array<std::int16_t, Recurrencias.size()> CheckR{};             ///< flags; not those of the boxes
    std::array<std::int16_t, Duraciones.size()> CheckD{};               ///< flags
    std::vector<std::int16_t> ListaRec = std::vector<std::int16_t>(1);  ///< ticked recurrences, from 1
    std::vector<std::int16_t> ListaDur = std::vector<std::int16_t>(1);  ///< ticked durations, from 1
    std::int16_t NroRec = 0, NroDur = 0;
    bool ProyectoNuevo = false;  ///< a new project waits for its configuration to be confirmed
    bool ConfPendiente = false;  ///< start-up is over: a read of the pointer tests that its project is there
    ControlesConfigura frmConfigura{};

    model::Vigilancia Vigilancia{};  ///< what is known of the project's files on disk

    // --- control ---
    bool SalidaPizarra = false;  ///< the Slate is on
    std::string TextoPizarra{};  ///< the Slate's text while a run builds it; UTF-8, CR LF
    bool ErrorRed = false;       ///< the validation of the network found a problem
    bool AvisoDescargasVisto = false;
    bool CargaFallida = false;  ///< the network isn't all that its files hold: their reading was at fault
    bool ContinuarSinCorregir = false;
    bool RedOk = false;
    bool SaltarTormenta = false;  ///< the storm in hand is deselected
    double HoraInicio = 0;        ///< start of a series [s of the host's clock]
    std::int16_t IndComp = 0, IndUEH = 0;

  private:
    template <typename T>
    static Arreglo<T> Ceros(int tope)
    {
        Arreglo<T> a;
        a.Dimensiona(tope);
        return a;
    }
};

}  // namespace model
