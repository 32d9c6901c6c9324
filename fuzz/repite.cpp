// SPDX-License-Identifier: GPL-3.0-or-later
//
// Stands in for libFuzzer where it isn't linked: hands every file of the folders named on the command line to
// the fuzzer's one routine. A folder that is missing or empty is a failure, since then nothing would have
// been tried.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo);

namespace {

void Repite(const std::filesystem::path& archivo)
{
    std::ifstream entrada(archivo, std::ios::binary);
    const std::vector<char> leido{std::istreambuf_iterator<char>(entrada), std::istreambuf_iterator<char>()};
    const std::vector<std::uint8_t> datos(leido.begin(), leido.end());
    LLVMFuzzerTestOneInput(datos.data(), datos.size());
}

}  // namespace

int main(int argc, char** argv)
{
    std::size_t repetidos = 0;
    for (int i = 1; i < argc; ++i) {
        std::error_code error;
        for (const auto& entrada : std::filesystem::directory_iterator(argv[i], error)) {
            Repite(entrada.path());
            ++repetidos;
        }
    }
    std::cout << repetidos << " inputs\n";
    return repetidos > 0 ? 0 : 1;
}
