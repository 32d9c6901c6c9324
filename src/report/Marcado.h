// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

// Text in marked-up files.
namespace report {

/// A text as HTML and XML hold it, in elements and in attributes: & < > " ' written out; control characters,
/// which XML can't hold, left out; bytes that are no UTF-8 as U+FFFD.
std::string Escapado(std::string_view texto);

/// Whether all bytes are UTF-8 (RFC 3629).
bool EsUtf8(std::string_view bytes);

/// Bytes in Base64 (RFC 4648).
std::string Base64(std::string_view bytes);

}  // namespace report
