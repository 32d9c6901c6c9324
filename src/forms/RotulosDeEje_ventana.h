// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QCPAxis;

namespace forms {

struct Grafico;

/// The axis labels the categories of a chart, row 1 at 1, as its scale says; of a chart whose rows have
/// places of their own those that it names. Labels never touch one another: where those asked for have no
/// room, some are left out. The chart must outlive the axis.
void RotulaCategorias(QCPAxis& eje, const Grafico& grafico);

/// The axis labels its values up to `tope` and leaves the rest of its length bare.
void RotulaHasta(QCPAxis& eje, double tope);

/// The axis labels its values as usual.
void RotulaValores(QCPAxis& eje);

/// The same of a logarithmic axis, 1, 2, 5 of each power of ten.
void RotulaLogaritmos(QCPAxis& eje);

}  // namespace forms
