// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/CampoNumerico.h"
#include "forms/Campos_ventana.h"
#include "forms/Disposicion_ventana.h"
#include "forms/Entorno_ventana.h"
#include "forms/Lista_ventana.h"
#include "forms/Rotulo.h"
#include "forms/Textos_ventana.h"

// What every window is made of: controls by the rows of their captions, their events, the showing of the
// record.
namespace forms {

class Lamina;
struct Grafico;
struct Grilla;
class TablaGrilla;

/// How an item of a list is picked beside a click, Enter and the blank.
enum class Flechas : std::uint8_t {
    Mueven,         ///< the arrows only move to an item
    Eligen,         ///< they pick at once
    EligenAlSalir,  ///< what they have come to is picked as the list is left
};

/// What all windows are made of. Each event of the user is handed to the form's rules, then the window shows
/// the record anew; F1 opens the window's page of help where none of its controls takes that key.
///
/// Controls are made by the rows of the window's captions: each takes its object name, its caption, its hint
/// and what a reader of the screen says of it, hands its events to the rules, and remembers how the record is
/// shown in it. What is handed in by reference lives as long as the window. Controls belong to the window as
/// soon as their layout does.
class Constructor : protected Disposicion {
  public:
    Constructor(const Constructor&) = delete;
    Constructor& operator=(const Constructor&) = delete;

    /// Shows what the record holds in every control, in the order in which they were made. Sets only what
    /// differs, and calls no handler.
    virtual void Muestra();

  protected:
    explicit Constructor(Entorno& alrededor, std::span<const FilaRotulo> filas = {});
    virtual ~Constructor() = default;

    // --- events ---
    /// Handles an event. A field that is being left is checked first, and where it refuses its text nothing
    /// else happens.
    template <typename Cuerpo>
    void Suceso(Cuerpo&& cuerpo)
    {
        if (!campos.Compromete()) {
            if (!entorno.Terminando()) Muestra();
            return;
        }
        SucesoSinRevisar(std::forward<Cuerpo>(cuerpo));
    }

    /// The same without looking at the fields: for leaving the window without an effect.
    template <typename Cuerpo>
    void SucesoSinRevisar(Cuerpo&& cuerpo)
    {
        campos.Olvida();
        entorno.Atiende(std::forward<Cuerpo>(cuerpo));
        if (!entorno.Terminando()) Muestra();
    }

    /// `rutina` runs at each click of the button.
    template <typename Rutina>
    void AlPulsar(QAbstractButton& boton, Rutina rutina)
    {
        QObject::connect(&boton, &QAbstractButton::clicked, &boton, [this, rutina] { Suceso(rutina); });
    }

    /// Takes F1 in whatever the window's controls let pass. Returns whether the event was that key.
    bool AtiendeF1(const QWidget& ventana, QEvent& evento);

    /// The record's word that the form is open, and where the record sends the focus.
    void Sigue(const bool& registroAbierto, Foco* suFoco = nullptr)
    {
        abierta = &registroAbierto;
        foco = suFoco;
    }
    /// What each window does with both once the record is shown.
    [[nodiscard]] bool SeCerro() const { return abierta != nullptr && !*abierta; }
    void LlevaFoco(QWidget& ventana);

    // --- controls ---
    /// The row of a control; an empty one where there is none.
    [[nodiscard]] FilaRotulo Fila(std::string_view control) const;
    /// Runs at each `Muestra`.
    void AlMostrar(std::function<void()> rutina) { muestran.push_back(std::move(rutina)); }
    /// A control of any other kind.
    template <typename T>
    T* Nombra(T* widget, std::string_view control) const
    {
        NombraWidget(*widget, control);
        return widget;
    }
    /// What a control shows of itself beside its text, by the record.
    template <typename T>
    T* HabilitadoSi(T* widget, std::function<bool()> vale)
    {
        AlMostrar([widget, vale] { widget->setEnabled(vale()); });
        return widget;
    }
    template <typename T>
    T* VisibleSi(T* widget, std::function<bool()> vale)
    {
        AlMostrar([widget, vale] { widget->setVisible(vale()); });
        return widget;
    }

    // --- fields ---
    /// A field that holds a text of the record at each edit, checked as it is left where `revisa` is given.
    QLineEdit* Campo(std::string_view control, std::string& texto, std::function<bool()> revisa = {});
    /// The same with a list of texts to choose from.
    QComboBox* CampoConLista(std::string_view control, const std::vector<std::string>& items,
                             std::string& texto, std::function<bool()> revisa = {});
    QCheckBox* Casilla(std::string_view control, std::function<bool()> tildada,
                       std::function<void(bool)> pulsa);
    QRadioButton* Opcion(std::string_view control, const bool& marcada, std::function<void()> elige);
    /// Options of one control, which number from 0 tells apart, and the one ticked, -1: none; their captions
    /// are handed in.
    template <std::size_t N>
    std::array<QRadioButton*, N> Opciones(std::string_view control,
                                          const std::array<std::string_view, N>& leyendas, const int& marcada,
                                          const std::function<void(int)>& elige)
    {
        std::array<QRadioButton*, N> opciones{};
        for (std::size_t i = 0; i < N; ++i)
            opciones[i] = OpcionDe(control, static_cast<int>(i), leyendas[i], marcada, elige);
        return opciones;
    }

    // --- lists; picking an item is an event, with its number from 0 ---
    ListaParaElegir* Listado(std::string_view control, const std::vector<std::string>& items,
                             const int& indice, Flechas flechas, std::function<void(int)> elige);
    QComboBox* Desplegable(std::string_view control, const std::vector<std::string>& items, const int& indice,
                           std::function<void(int)> elige);

    /// The same of a record's list, which has taken the number by then.
    template <typename Lista>
    ListaParaElegir* Listado(std::string_view control, Lista& lista, Flechas flechas,
                             std::function<void()> elige)
    {
        return Listado(control, lista.items, lista.indice, flechas, [&lista, elige](int i) {
            lista.indice = i;
            elige();
        });
    }
    template <typename Lista>
    QComboBox* Desplegable(std::string_view control, Lista& lista, std::function<void()> elige)
    {
        return Desplegable(control, lista.items, lista.indice, [&lista, elige](int i) {
            lista.indice = i;
            elige();
        });
    }

    // --- buttons ---
    QPushButton* Boton(std::string_view control, std::function<void()> rutina);
    /// One that leaves the window: what is wrong in the fields must not keep the user there.
    QPushButton* BotonSinRevisar(std::string_view control, std::function<void()> rutina);

    // --- labels ---
    /// The caption of a control, whose access key leads to it.
    QLabel* Rotulo(std::string_view control, QWidget* lleva = nullptr) const;
    /// A text of the record.
    QLabel* Texto(std::string_view control, const std::string& texto);
    /// One whose caption is all that it says.
    QLabel* Texto(std::string_view control) const;
    /// Caption, control, and the unit behind it unless the caption tells it: a row of a grid.
    Partes Renglon(std::string_view control, QWidget* widget, std::string_view unidad = {}) const;
    /// Caption and text of the record.
    Partes Dato(std::string_view control, const std::string& texto);

    // --- composed ---
    QGroupBox* Marco(std::string_view control, QLayout* dentro) const;
    TablaGrilla* Tabla(Grilla& grilla, std::string_view control);
    /// A chart beside the fields of a form.
    Lamina* Curva(std::string_view control, std::function<Grafico()> grafico);

    Entorno& entorno;
    Campos campos;
    /// A text that doesn't fit is shown from its beginning, not from its end.
    bool desdeElPrincipio = false;

  private:
    void NombraWidget(QWidget& widget, std::string_view control) const;
    QRadioButton* OpcionDe(std::string_view control, int numero, std::string_view leyenda, const int& marcada,
                           const std::function<void(int)>& elige);

    std::span<const FilaRotulo> rotulos;
    const bool* abierta = nullptr;
    Foco* foco = nullptr;
    std::vector<std::function<void()>> muestran{};
};

}  // namespace forms
