// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/lienzo/CargaImagen_ventana.h"

#include <QApplication>
#include <QProgressDialog>
#include <QTimer>
#include <future>
#include <stop_token>
#include <system_error>
#include <thread>
#include <utility>

#include "forms/Textos_ventana.h"

namespace editor {
namespace {

using Reloj = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto Latido = 20ms;  // between two looks at whether the image is there

bool Lista(const std::future<ImagenLeida>& leida, Reloj::duration espera = 0ms)
{
    return leida.wait_for(espera) == std::future_status::ready;
}

/// Shows a box until the image is there or the time is over. Returns false where the user cancels.
bool Espera(forms::Entorno& entorno, const std::string& ruta, const std::future<ImagenLeida>& leida,
            Reloj::time_point hasta)
{
    QProgressDialog caja(forms::Q("Leyendo la imagen " + ruta), QStringLiteral("&Cancelar"), 0, 0,
                         QApplication::activeWindow());
    caja.setObjectName(QStringLiteral("CargaDeImagen"));
    caja.setWindowTitle(QStringLiteral("SIRO"));
    caja.setWindowModality(Qt::ApplicationModal);
    QTimer latido;
    QObject::connect(&latido, &QTimer::timeout, &caja, [&] {
        if (Lista(leida) || Reloj::now() >= hasta) caja.accept();
    });
    latido.start(Latido);
    return entorno.Ejecuta(caja) == QDialog::Accepted;
}

}  // namespace

ImagenLeida CargaImagen(forms::Entorno& entorno, const std::string& ruta, std::chrono::milliseconds plazo)
{
    const Reloj::time_point hasta = Reloj::now() + plazo;
    std::packaged_task<ImagenLeida(std::stop_token)> tarea([ruta](const std::stop_token& alto) {
        return LeeImagen(ruta, [alto] { return !alto.stop_requested(); });
    });
    std::future<ImagenLeida> leida = tarea.get_future();
    std::jthread hilo;
    try {
        hilo = std::jthread(std::move(tarea));
    } catch (const std::system_error&) {  // no thread to be had: here, then, and no longer than the time
        return LeeImagen(ruta, [hasta] { return Reloj::now() < hasta; });
    }
    if (Lista(leida, std::min<Reloj::duration>(SilencioDeCarga, plazo))) return leida.get();
    const bool sigue = Espera(entorno, ruta, leida, hasta);
    if (sigue && Lista(leida)) return leida.get();
    hilo.request_stop();
    hilo.detach();  // one record alone may take minutes: nobody waits for it
    return {{}, sigue ? CargaDeImagen::Excesiva : CargaDeImagen::Cancelada};
}

}  // namespace editor
