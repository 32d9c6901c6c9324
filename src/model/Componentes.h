// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace model {

struct Siro;

/// Reads the project's components and the vertices of its reaches; every component object is replaced.
/// A missing file is an empty network and silent; failures are reported through the host, never thrown.
/// The name found inside the component file becomes NombreProyecto and rules from there on.
void LeeUEHs(Siro& s);

/// "Guardar" of the basin editor: stream orders, both files, a fresh read and the message that tells so.
/// Without any component both files are deleted instead. Failures are reported, never thrown.
void mnu_btn_toolbarGuardaUEHs(Siro& s);

/// Sets OrdenCauce of every reach: a rule in the manner of Strahler (1952), in ten passes over the
/// collection. Lagos and Represas pass on the orders of the reaches that they gather.
void CalculaOrdenCauces(Siro& s);

}  // namespace model
