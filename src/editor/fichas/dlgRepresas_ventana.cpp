// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgRepresas_ventana.h"

namespace editor {

using forms::Partes;
using forms::Q;

namespace {

QString Indexado(std::string_view control, int funcion)
{
    return QStringLiteral("%1_%2").arg(Q(control)).arg(funcion);
}

}  // namespace

dlgRepresas_ventana::dlgRepresas_ventana(forms::Entorno& alrededor, dlgRepresas& registro, QWidget* padre)
    : FichaEmbalse_ventana(alrededor, {"dlgRepresas", TituloDlgRepresas, RotulosDlgRepresas}, registro, padre)
{
    Dispone({ListaDeComponentes("lstRepresas", f.lstRepresas,
                                [this](int linea) { EligeComponente(f, entorno.s, linea); }),
             Propiedades(),
             {EnPila({MarcoDeSeleccion(), MarcoDeFunciones(), Hueco()}), 1}},
            [this] { OKButton(f, entorno.s); });
}

QLayout* dlgRepresas_ventana::Propiedades()
{
    std::vector<Partes> filas = Identidad({"lblNroRepresa", "lblNombreRepresa", "txtNombreRepresa",
                                           f.lblNroRepresa, f.lblNombreRepresa, f.txtNombreRepresa},
                                          [this] { ArreglaNombre(f, entorno.s); });
    filas.push_back(Destinos("lblDrenaCauceAA", &f.lblDrenaCauceAA));
    filas.push_back(Metodo());
    Partes coeficientes =
        Coeficiente(CamposDlgRepresas, "txtRepresa_k", {"lblRepresaCofk", f.lblRepresaCofk}, 'k');
    for (const forms::Parte& parte :
         Coeficiente(CamposDlgRepresas, "txtRepresa_n", {"lblRepresaCofn", f.lblRepresaCofn}, 'x'))
        coeficientes.push_back(parte);
    filas.push_back({EnFila(coeficientes)});
    filas.push_back({Texto("lblReferencia")});
    filas.push_back(Apunta("txtRepresa_k", 2, ApunteMuskingum<dlgRepresas>));
    filas.push_back(AlturaInicial());
    filas.push_back(Apunta("txtHInicialEmb", 2, ApunteAltura));
    filas.push_back({Boton("cmdHSV", [this] { AbreTabla(cmdHSV(f)); })});
    return EnRejilla(filas);
}

QWidget* dlgRepresas_ventana::MarcoDeSeleccion()
{
    return Marco(
        "fraSeleccion",
        EnFila({Opcion("optTablaQ", f.optTablaQ, [this] { optTablaQ_Click(f); }),
                HabilitadoSi(Boton("cmdTablaQ", [this] { AbreTabla(cmdTablaQ(f)); }),
                             [this] { return f.cmdTablaQHabilitado(); }),
                Hueco(fontMetrics().averageCharWidth() * 4),
                Opcion("optFunciones", f.optFunciones, [this] { optFunciones_Click(f); }), Hueco()}));
}

QWidget* dlgRepresas_ventana::MarcoDeFunciones()
{
    Partes titulos{Hueco()};
    for (const CampoFQ& campo : CamposFQ) {
        const std::string_view leyenda = Fila(campo.control).leyenda;
        const QString unidad = Q(forms::UnidadAparte(leyenda, campo.unidad));
        titulos.emplace_back(new QLabel((Q(leyenda) + QLatin1Char(' ') + unidad).trimmed()), 0,
                             Qt::AlignHCenter);
    }
    std::vector<Partes> filas{titulos};
    for (int funcion = 1; funcion <= model::NroFuncionesFQ; ++funcion)
        filas.push_back(FilaDeFuncion(funcion));
    filas.push_back(Apunta("txtFQHmin", 3, ApunteFunciones));
    return Marco("fraFunciones", EnRejilla(filas, {0, 1, 1, 1, 1, 1}));
}

Partes dlgRepresas_ventana::FilaDeFuncion(int funcion)
{
    const auto lugar = static_cast<std::size_t>(funcion) - 1;
    const QString leyenda = Q(model::FuncionesFQ[lugar].rotulo);
    QCheckBox* const marca = Casilla(
        "chkFQ", [this, lugar] { return f.chkFQ[lugar]; },
        [this, funcion](bool marcada) { chkFQ_Click(f, funcion, marcada); });
    marca->setText(leyenda);
    marca->setObjectName(Indexado("chkFQ", funcion));
    Partes fila{HabilitadoSi(marca, [this] { return f.chkFQHabilitado(); })};
    for (const CampoFQ& campo : CamposFQ) {
        if (!campo.Tiene(lugar)) {
            fila.push_back(Hueco());
            continue;
        }
        QLineEdit* const texto = CampoNumero(campo.control, (f.*campo.textos)[lugar], Sale(campo.control));
        texto->setObjectName(Indexado(campo.control, funcion));
        texto->setAccessibleName(leyenda + QStringLiteral(", ") + Q(Fila(campo.control).leyenda));
        texto->setMinimumWidth(fontMetrics().averageCharWidth() * 9);
        fila.emplace_back(HabilitadoSi(texto, [this, funcion] { return f.FuncionHabilitada(funcion); }));
    }
    return fila;
}

}  // namespace editor
