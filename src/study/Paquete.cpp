// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Paquete.h"

#include <zip.h>

#include <cstdint>
#include <cstring>
#include <memory>
#include <new>

#include "model/Falla.h"

namespace study {

namespace {

constexpr zip_uint16_t MediaNoche = 0, Dia = (2000 - 1980) << 9 | 1 << 5 | 1;  // what every piece is dated
constexpr zip_uint32_t ArchivoQueTodosLeen = 0100644U << 16;

[[noreturn]] void Rechaza(std::string_view nota)
{
    throw model::Falla{model::NumeroFalla::AccesoRuta, nota};
}

/// Throws the fault that nothing but want of memory brings about.
template <typename T>
T Exige(T valor, bool bien)
{
    if (!bien) throw std::bad_alloc();
    return valor;
}

struct Suelta {
    void operator()(zip_t* z) const { zip_discard(z); }
    void operator()(zip_source_t* f) const { zip_source_free(f); }
    void operator()(zip_file_t* f) const { zip_fclose(f); }
};
using Archivo = std::unique_ptr<zip_t, Suelta>;
using Fuente = std::unique_ptr<zip_source_t, Suelta>;

/// An archive over a source, which both then own.
Archivo Sobre(const Fuente& fuente, int modo)
{
    if (!fuente) throw std::bad_alloc();
    Archivo archivo(zip_open_from_source(fuente.get(), modo, nullptr));
    if (archivo) zip_source_keep(fuente.get());
    return archivo;
}

void Agrega(zip_t* z, const Pieza& pieza)
{
    zip_source_t* bytes = zip_source_buffer(z, pieza.bytes.data(), pieza.bytes.size(), 0);
    const zip_int64_t numero = zip_file_add(z, pieza.nombre.c_str(), bytes, ZIP_FL_ENC_UTF_8);
    if (numero < 0) {
        zip_source_free(bytes);
        throw std::bad_alloc();
    }
    const auto n = static_cast<zip_uint64_t>(numero);
    zip_set_file_compression(z, n, pieza.comprimida ? ZIP_CM_DEFLATE : ZIP_CM_STORE, 0);
    zip_file_set_dostime(z, n, MediaNoche, Dia, 0);
    zip_file_set_external_attributes(z, n, 0, ZIP_OPSYS_UNIX, ArchivoQueTodosLeen);
}

std::string TodoDe(zip_source_t* fuente)
{
    zip_stat_t datos{};
    Exige(0, zip_source_stat(fuente, &datos) == 0 && zip_source_open(fuente) == 0);
    std::string bytes(datos.size, '\0');
    const zip_int64_t leidos = zip_source_read(fuente, bytes.data(), bytes.size());
    zip_source_close(fuente);
    return Exige(std::move(bytes), leidos >= 0 && static_cast<zip_uint64_t>(leidos) == datos.size);
}

/// Reads a piece of a package that has `resto` bytes left to unpack.
Pieza Lee(zip_t* z, zip_uint64_t n, std::size_t resto)
{
    zip_stat_t datos{};
    if (zip_stat_index(z, n, ZIP_FL_ENC_GUESS, &datos) != 0) Rechaza("El paquete está dañado.");
    if (datos.encryption_method != ZIP_EM_NONE) Rechaza("El paquete está cifrado.");
    if (datos.size > resto) Rechaza("El paquete es demasiado grande: contiene más de 64 MiB.");
    const std::unique_ptr<zip_file_t, Suelta> archivo(zip_fopen_index(z, n, 0));
    Pieza pieza{datos.name, std::string(datos.size, '\0'), datos.comp_method != ZIP_CM_STORE};
    const zip_int64_t leidos =
        archivo ? zip_fread(archivo.get(), pieza.bytes.data(), pieza.bytes.size()) : zip_int64_t{-1};
    char sobra = 0;  // what is behind the last byte says whether its sum is right
    if (leidos < 0 || static_cast<zip_uint64_t>(leidos) != datos.size ||
        zip_fread(archivo.get(), &sobra, 1) != 0)
        Rechaza("El paquete está dañado.");
    return pieza;
}

}  // namespace

std::string Empaqueta(const std::vector<Pieza>& piezas)
{
    const Fuente fuente(zip_source_buffer_create(nullptr, 0, 0, nullptr));
    Archivo archivo = Sobre(fuente, ZIP_TRUNCATE);
    Exige(0, archivo != nullptr);
    for (const Pieza& pieza : piezas)
        Agrega(archivo.get(), pieza);
    Exige(0, zip_close(archivo.get()) == 0);
    static_cast<void>(archivo.release());
    return TodoDe(fuente.get());
}

std::vector<Pieza> Desempaqueta(std::string_view paquete)
{
    const Fuente fuente(zip_source_buffer_create(paquete.data(), paquete.size(), 0, nullptr));
    const Archivo archivo = Sobre(fuente, ZIP_RDONLY | ZIP_CHECKCONS);
    const zip_int64_t cuantas = archivo ? zip_get_num_entries(archivo.get(), 0) : 0;
    if (cuantas <= 0) Rechaza("No es un paquete, o está dañado.");  // no byte at all would be an empty one
    std::vector<Pieza> piezas;
    std::size_t resto = TopeDesempaquetado;
    for (zip_uint64_t n = 0; n < static_cast<zip_uint64_t>(cuantas); ++n) {
        piezas.push_back(Lee(archivo.get(), n, resto));
        resto -= piezas.back().bytes.size();
    }
    return piezas;
}

}  // namespace study
