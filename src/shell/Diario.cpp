// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Diario.h"

#include <algorithm>
#include <charconv>
#include <system_error>
#include <utility>

#include "checks/Sha256.h"
#include "model/Falla.h"
#include "model/RutaProyecto.h"

namespace shell {

namespace {

constexpr std::string_view Marca = "SIRO diario ";
constexpr std::string_view Version = "1";
constexpr std::string_view Danado = "El diario está dañado: no se lo puede leer.";
constexpr std::string_view Posterior = "El diario es de una versión posterior del programa.";
constexpr std::size_t LargoDeSuma = 64;
constexpr std::size_t TopeDeFormas = std::size_t{4} << 20;
constexpr std::string_view Apartados = "Descartados";
constexpr std::size_t MaxApartados = 20;

model::Falla FallaDeDiario(std::string_view nota)
{
    return {model::NumeroFalla::AccesoRuta, nota};
}

std::string Suma(std::string_view bytes)
{
    checks::Sha256 suma;
    suma.Agrega(bytes);
    return suma.Cierra();
}

// One walk over the parts of a journal both writes and reads them.

/// Puts texts, each with its length ahead.
struct Escritor {
    std::string bytes{};
    void operator()(const std::string& texto)
    {
        bytes.append(std::to_string(texto.size())).append(":").append(texto).append("\n");
    }
    void operator()(const std::size_t& numero) { (*this)(std::to_string(numero)); }
    template <typename T>
    void Lista(const std::vector<T>& lista, auto&& cada)
    {
        (*this)(lista.size());
        for (const T& uno : lista)
            cada(*this, uno);
    }
};

/// Takes them again.
struct Lector {
    std::string_view bytes;
    void operator()(std::string& texto)
    {
        const std::size_t dos = bytes.find(':');
        const std::size_t largo = Numero(bytes.substr(0, dos));
        if (dos == std::string_view::npos || largo >= bytes.size() - dos - 1) throw FallaDeDiario(Danado);
        texto = bytes.substr(dos + 1, largo);
        bytes.remove_prefix(dos + 1 + largo + 1);
    }
    void operator()(std::size_t& numero)
    {
        std::string texto;
        (*this)(texto);
        numero = Numero(texto);
    }
    template <typename T>
    void Lista(std::vector<T>& lista, auto&& cada)
    {
        std::size_t cuantos = 0;
        (*this)(cuantos);
        if (cuantos > bytes.size()) throw FallaDeDiario(Danado);
        lista.resize(cuantos);
        for (T& uno : lista)
            cada(*this, uno);
    }

  private:
    static std::size_t Numero(std::string_view texto)
    {
        std::size_t numero = 0;
        const auto leido = std::from_chars(texto.data(), texto.data() + texto.size(), numero);
        if (leido.ec != std::errc{} || leido.ptr != texto.data() + texto.size()) throw FallaDeDiario(Danado);
        return numero;
    }
};

void CadaParte(auto& parte, auto& contenido)
{
    parte(contenido.ventana);
    parte(contenido.titulo);
    parte.Lista(contenido.campos, [](auto& p, auto& campo) {
        p(campo.control);
        p(campo.leyenda);
        p(campo.valor);
    });
    parte.Lista(contenido.tablas, [](auto& p, auto& tabla) {
        p(tabla.control);
        p(tabla.leyenda);
        p.Lista(tabla.filas,
                [](auto& q, auto& fila) { q.Lista(fila, [](auto& r, auto& celda) { r(celda); }); });
    });
}

/// A journal as lists, which are written and read alike.
struct Partes {
    std::vector<std::pair<std::string, std::size_t>> huellas{};
    std::vector<editor::RedEscrita> red{};
};

void CadaParte(auto& parte, auto& diario, auto& partes)
{
    parte(diario.proyecto);
    parte(diario.conf);
    parte(diario.cuando);
    parte.Lista(partes.huellas, [](auto& p, auto& huella) {
        p(huella.first);
        p(huella.second);
    });
    parte.Lista(partes.red, [](auto& p, auto& red) {
        p(red.uehs);
        p(red.verCau);
        p(red.trazo);
    });
    parte.Lista(diario.formas, [](auto& p, auto& contenido) { CadaParte(p, contenido); });
}

/// Leaves out what forms hold beyond the bound.
void Recorta(std::vector<forms::Contenido>& formas)
{
    std::size_t bytes = 0;
    for (forms::Contenido& forma : formas) {
        Escritor escritor;
        CadaParte(escritor, forma);
        bytes += escritor.bytes.size();
        if (bytes > TopeDeFormas) forma = {.ventana = forma.ventana, .titulo = forma.titulo};
    }
}

bool EsDiario(const std::string& nombre)
{
    return nombre.ends_with(FinDeDiario);
}

std::vector<std::string> Diarios(const model::Disco& disco, const std::string& carpeta)
{
    std::vector<std::string> nombres;
    model::Sentencia([&] { nombres = disco.Lista(carpeta); });
    std::erase_if(nombres, [](const std::string& nombre) { return !EsDiario(nombre); });
    return nombres;
}

}  // namespace

std::string Compone(Diario diario)
{
    Recorta(diario.formas);
    Partes partes{.huellas = {diario.huellas.begin(), diario.huellas.end()}};
    if (diario.red) partes.red.push_back(*diario.red);
    Escritor escritor;
    CadaParte(escritor, std::as_const(diario), std::as_const(partes));
    return std::string(Marca)
        .append(Version)
        .append("\n")
        .append(Suma(escritor.bytes))
        .append("\n")
        .append(escritor.bytes);
}

Diario LeeDiario(std::string_view bytes)
{
    const std::size_t fin = bytes.find('\n');
    if (!bytes.starts_with(Marca) || fin == std::string_view::npos) throw FallaDeDiario(Danado);
    if (bytes.substr(Marca.size(), fin - Marca.size()) != Version) throw FallaDeDiario(Posterior);
    bytes.remove_prefix(fin + 1);
    const bool entera = bytes.size() > LargoDeSuma && bytes[LargoDeSuma] == '\n';
    if (!entera || Suma(bytes.substr(LargoDeSuma + 1)) != bytes.substr(0, LargoDeSuma))
        throw FallaDeDiario(Danado);
    Diario diario;
    Partes partes;
    Lector lector{bytes.substr(LargoDeSuma + 1)};
    CadaParte(lector, diario, partes);
    diario.huellas = {partes.huellas.begin(), partes.huellas.end()};
    if (!partes.red.empty()) diario.red = std::move(partes.red.front());
    return diario;
}

std::vector<DiarioHallado> BuscaDiarios(const model::Disco& disco, const std::string& carpeta,
                                        const std::function<bool(const std::string& ruta)>& toma)
{
    std::vector<DiarioHallado> hallados;
    if (!disco.HayDirectorio(carpeta)) return hallados;
    model::Sentencia([&] { disco.Recupera(carpeta); });  // what a program that was killed had begun there
    for (const std::string& nombre : Diarios(disco, carpeta)) {
        DiarioHallado hallado{.ruta = model::Ruta(carpeta, nombre)};
        if (!toma(hallado.ruta)) continue;
        const bool leido = model::Sentencia(
            [&] { hallado.diario = LeeDiario(disco.Lee(hallado.ruta)); },
            [&](const model::Falla& falla) {
                hallado.dano = falla.nota.empty() ? model::DescripcionFalla(falla.numero) : falla.nota;
            });
        if (leido || !hallado.dano.empty()) hallados.push_back(std::move(hallado));
    }
    return hallados;
}

std::string NombreDeDiario(std::string_view cuando, long proceso)
{
    return std::string(cuando).append("-").append(std::to_string(proceso)).append(FinDeDiario);
}

void ApartaDiario(const model::Disco& disco, const std::string& ruta)
{
    const std::size_t separador = ruta.rfind(model::Separador);
    const std::string carpeta = model::Ruta(ruta.substr(0, separador), Apartados);
    if (!disco.HayDirectorio(carpeta)) disco.CreaDirectorio(carpeta);
    disco.Copia(ruta, model::Ruta(carpeta, ruta.substr(separador + 1)));
    disco.Borra(ruta);
    const std::vector<std::string> nombres = Diarios(disco, carpeta);
    for (std::size_t i = 0; i + MaxApartados < nombres.size(); ++i)
        model::Sentencia([&] { disco.Borra(model::Ruta(carpeta, nombres[i])); });
}

}  // namespace shell
