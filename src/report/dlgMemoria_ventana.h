// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <functional>
#include <memory>
#include <string>

#include "forms/Formulario_ventana.h"
#include "report/Entrega_ventana.h"
#include "report/dlgMemoria.h"
#include "study/Vigilada_ventana.h"

class QListWidget;

namespace report {

class Hojas;

/// Window that makes the memoria of the last runs. What takes long is done on a thread, pages and figures one
/// by one beside the user's events; Esc and Cancel leave it at once, and the file as it was.
class dlgMemoria_ventana : public forms::Ventana {
  public:
    dlgMemoria_ventana(forms::Entorno& alrededor, dlgMemoria& registro, QWidget* padre = nullptr);
    ~dlgMemoria_ventana() override;

    /// What a memoria is made of just now; and the path ahead of "_memoria.pdf".
    std::function<Datos()> DeQue = [] { return Datos{}; };
    std::function<std::string()> Base = [] { return std::string(); };
    /// The image under the network.
    std::function<results::FondoDeMapa()> Fondo = [] { return results::FondoDeMapa{}; };
    /// Runs the storm in hand. Runs inside an event.
    std::function<void()> Corre = [] {};
    /// Hands a file to the system's own program for it. Returns whether it took it.
    std::function<bool(const std::string& ruta)> AbreArchivo;

    /// Comes to the front with the last runs.
    void Abre();
    /// The runs are others, the window being open.
    void Toma();

  protected:
    void AlCerrar() override;
    void keyPressEvent(QKeyEvent* evento) override;

  private:
    enum class Fin { Archivo, Vista };
    QLayout* Listas();
    QLayout* Campos1();
    QLayout* Vista();
    QLayout* Botones();
    QListWidget* Tildes(std::string_view control, std::function<std::vector<std::string>()> textos,
                        const std::vector<bool>& tildes, std::function<void(std::size_t, bool)> tilda);
    void RecuerdaElecciones();
    void GuardaElecciones();
    void LeePlantillaEnUso();
    void EditaPlantilla();
    void EligeLogo();
    void EligeArchivo();
    bool LeeLogo(std::string& bytes);
    void Empieza(Fin para);
    void Prepara(study::Vigilada<Documento>::Mirada& mirada);
    void Adelanta();
    void Escribe();
    void Cancela();
    void Termina(const std::string& nota);
    [[nodiscard]] bool Reemplazable();

    dlgMemoria& f;
    Hojas* hojas = nullptr;
    study::Vigilada<Documento> preparacion;
    Fin fin = Fin::Archivo;
    Entrega::Pedido pedido{};
    std::unique_ptr<Entrega> entrega;
    QTimer paso{};
    int hechas = 0, total = 0;
};

}  // namespace report
