// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/taller/TallerIdf_ventana.h"

#include <QHeaderView>
#include <QScrollArea>
#include <QSplitter>
#include <algorithm>

#include "forms/Grilla_ventana.h"
#include "forms/Lamina_ventana.h"

namespace frequency {

TallerIdf_ventana::TallerIdf_ventana(forms::Entorno& alrededor, dlgTaller& taller)
    : PaginaDeTaller(alrededor, taller, RotulosTallerIdf, "TallerIdf")
{
    auto* const fila = EnFila({Elecciones(), {Derecha(), 1}});
    fila->setContentsMargins(0, 0, 0, 0);
    setLayout(fila);
}

forms::Partes TallerIdf_ventana::Lista(std::string_view control, ListaDeTaller& lista, Eleccion elige,
                                       Vale vale)
{
    constexpr int Letras = 12;
    QComboBox* const combo = Corta(Desplegable(control, lista, [this, elige] { elige(m, f); }), Letras);
    QLabel* const rotulo = Rotulo(control, combo);
    if (vale != nullptr)
        AlMostrar([this, combo, rotulo, vale] {
            combo->setVisible(vale(f));
            rotulo->setVisible(vale(f));
        });
    return {rotulo, combo};
}

forms::Partes TallerIdf_ventana::Numero(std::string_view control, std::string& texto, std::string_view unidad,
                                        Vale vale)
{
    QLineEdit* const campo =
        Campo(control, texto, [this, control] { return txtIdf_AlSalir(m, f, entorno.s, control); });
    const forms::Partes partes = Renglon(control, campo, unidad);
    AlMostrar([this, partes, vale] {
        for (const forms::Parte& parte : partes)
            if (parte.control != nullptr) parte.control->setVisible(vale(f));
    });
    return partes;
}

forms::Partes TallerIdf_ventana::Coeficiente(std::size_t i)
{
    static constexpr std::array<std::string_view, CoeficientesDeIdf> Controles{"txtCoef0", "txtCoef1",
                                                                               "txtCoef2", "txtCoef3"};
    QLineEdit* const campo = Campo(Controles[i], m.txtCoef[i],
                                   [this, i] { return txtIdf_AlSalir(m, f, entorno.s, Controles[i]); });
    constexpr int Letras = 10;
    campo->setFixedWidth(Letras * fontMetrics().averageCharWidth());
    QLabel* const rotulo = Rotulo(Controles[i], campo);
    rotulo->setWordWrap(true);
    AlMostrar([this, campo, rotulo, i] {
        const bool hay = !m.lblCoef[i].empty();
        campo->setVisible(hay);
        rotulo->setVisible(hay);
        rotulo->setText(forms::Q(m.lblCoef[i]));
        if (hay) campo->setAccessibleName(forms::Q(m.lblCoef[i]));
    });
    return {{rotulo, 1}, campo};
}

QLabel* TallerIdf_ventana::Formula(std::string_view control, const std::string& texto, Vale vale)
{
    QLabel* const rotulo = Texto(control, texto);
    rotulo->setTextFormat(Qt::RichText);
    rotulo->setWordWrap(true);
    rotulo->setTextInteractionFlags(Qt::TextSelectableByMouse);
    AlMostrar(
        [this, rotulo, &texto, vale] { rotulo->setVisible(!texto.empty() && (vale == nullptr || vale(f))); });
    return rotulo;
}

QWidget* TallerIdf_ventana::Grilla(std::string_view control, forms::Grilla& grilla,
                                   void (*asienta)(TallerIdf&, dlgTaller&), Vale vale)
{
    forms::TablaGrilla* const g = Tabla(grilla, control);
    g->AlCambiar = [this, asienta](const forms::Efecto& efecto) {
        if (!efecto.asentadas.empty()) asienta(m, f);
    };
    g->DeshaceFuera = [this] { Suceso([this] { cmdDeshacer(f); }); };
    g->RehaceFuera = [this] { Suceso([this] { cmdRehacer(f); }); };
    constexpr int EntreFilas = 8, Renglones = 8;  // [pixels at 96 dpi]; rows on show
    const int alto = g->fontMetrics().height() + EntreFilas;
    g->verticalHeader()->setMinimumSectionSize(g->fontMetrics().height());
    g->verticalHeader()->setDefaultSectionSize(alto);
    g->setFixedHeight(Renglones * alto + g->horizontalHeader()->sizeHint().height());
    return VisibleSi(g, [this, vale] { return vale(f); });
}

/// What is chosen; it scrolls where the room is low.
QWidget* TallerIdf_ventana::Elecciones()
{
    QLayout* const origen = EnPila({EnRejilla({Lista("cmbOrigen", m.cmbOrigen, &cmbOrigen_Click),
                                               Lista("cmbDe", m.cmbDe, &cmbDe_Click, &PideMaximos),
                                               Numero("txtFactor", m.txtFactor, "", &PideMaximos),
                                               Lista("cmbDesagregacion", m.cmbDesagregacion,
                                                     &cmbDesagregacion_Click, &PideDesagregacion)},
                                              {0, 1}),
                                    Formula("lblDesagregacion", m.lblDesagregacion, &PideDesagregacion),
                                    Grilla("grdRazones", m.grdRazones, &grdRazones_Asienta, &PideRazones)});
    QLayout* const curvas = EnPila(
        {EnRejilla({Lista("cmbFamilia", m.cmbFamilia, &cmbFamilia_Click),
                    Lista("cmbCriterio", m.cmbCriterio, &cmbCriterio_Click, &PideMaximos)},
                   {0, 1}),
         Formula("lblFamilia", m.lblFamilia), Grilla("grdLibre", m.grdLibre, &grdLibre_Asienta, &PideLibre)});
    QGroupBox* const coeficientes =
        Marco("MarcoCoeficientes",
              EnPila({EnRejilla({Lista("cmbRegion", m.cmbRegion, &cmbRegion_Click, &PideRegion)}, {0, 1}),
                      EnRejilla({Coeficiente(0), Coeficiente(1), Coeficiente(2), Coeficiente(3)}, {1, 0})}));
    QLayout* const area = EnPila(
        {EnRejilla({Lista("cmbReduccion", m.cmbReduccion, &cmbReduccion_Click),
                    Numero("txtArea", m.txtArea, "km2", &PideArea), Numero("txtKA", m.txtKA, "", &PideKA)},
                   {0, 1}),
         Formula("lblReduccion", m.lblReduccion)});
    constexpr int Letras = 46;
    return EnColumna(
        {Marco("MarcoOrigen", origen), VisibleSi(coeficientes, [this] { return !m.lblCoef[0].empty(); }),
         Marco("MarcoCurvas", curvas), Marco("MarcoArea", area), Hueco()},
        Letras);
}

QWidget* TallerIdf_ventana::Derecha()
{
    tabla = new forms::TablaCuadro(entorno, m.tblCurvas, "tblCurvas", Fila("tblCurvas").leyenda);
    constexpr int LetrasDeDuracion = 16, LetrasAlMenos = 10, LetrasSinCifras = 8;
    std::vector<int> letras{LetrasDeDuracion};
    for (const int T : model::Recurrencias)
        letras.push_back(
            std::max(LetrasAlMenos, static_cast<int>(std::to_string(T).size()) + LetrasSinCifras));
    tabla->PonColumnas(std::move(letras));
    tabla->AlPulsarEncabezado = [this](int columna) {
        Suceso([&] { forms::PulsaEncabezado(m.tblCurvas, columna); });
    };
    tabla->Adorno = [](std::size_t, int, int papel) {
        return papel == Qt::TextAlignmentRole ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    };
    tabla->DaPlanilla = [this] { return PlanillaDeCurvas(m, f); };
    grafico = new forms::Lamina(entorno, "lamCurvas", "Curvas de intensidad");
    auto* const notas = Texto("lblNotas", m.lblNotas);
    notas->setWordWrap(true);
    notas->setTextInteractionFlags(Qt::TextSelectableByMouse);
    notas->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    auto* const lugar = new QScrollArea;
    lugar->setObjectName(QStringLiteral("lugarNotas"));
    lugar->setWidgetResizable(true);
    lugar->setWidget(notas);
    constexpr int Renglones = 4;
    lugar->setFixedHeight(Renglones * fontMetrics().lineSpacing());
    QComboBox* const vista = Desplegable("cmbVista", m.cmbVista, [this] { cmbVista_Click(m, f); });
    auto* const arriba = EnFila({Rotulo("cmbVista", vista), vista, Hueco(),
                                 Casilla(
                                     "chkLogaritmos", [this] { return m.chkLogaritmos; },
                                     [this](bool tildada) { chkLogaritmos_Click(m, f, tildada); })});
    QSplitter* const barra = LadoALado(tabla, grafico);
    barra->setOrientation(Qt::Vertical);
    constexpr int ParteDeTabla = 1, ParteDeGrafico = 2;
    barra->setSizes({1000 * ParteDeTabla, 1000 * ParteDeGrafico});
    auto* const lado = new QWidget;
    auto* const pila = EnPila({arriba, {barra, 1}, lugar});
    pila->setContentsMargins(0, 0, 0, 0);
    lado->setLayout(pila);
    return lado;
}

void TallerIdf_ventana::Muestra()
{
    PaginaDeTaller::Muestra();
    tabla->Muestra();
    grafico->Muestra(m.Grafico);
    grafico->PonTema(TemaDeCurvas(m, f), TemaDeCurvas(m, f));
}

}  // namespace frequency
