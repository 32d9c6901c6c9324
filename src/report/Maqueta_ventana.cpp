// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/Maqueta_ventana.h"

#include <qcustomplot.h>

#include <QDate>
#include <QFontMetricsF>
#include <QImage>
#include <QSvgRenderer>
#include <algorithm>
#include <array>
#include <utility>

#include "forms/Textos_ventana.h"

namespace report {
namespace {

using forms::Q;

constexpr double Borde = Margen * Milimetro;
constexpr double LetraDeTexto = 10.5, LetraDeBorde = 8.5;  // [points]
constexpr double EntreParrafos = 6 * Punto, Sangria = 18 * Punto;
constexpr std::array<double, 3> LetraDeTitulos{16, 13, 11};
constexpr std::array<double, 3> AntesDeTitulos{22 * Punto, 16 * Punto, 12 * Punto};

QString ConNumero(const Titulo& b)
{
    return b.numero.empty() ? Q(b.texto) : Q(b.numero + "  " + b.texto);
}

/// "3/4/2011" of "2011-04-03T10:20:30"; another text as it stands.
QString Dia(const std::string& iso)
{
    const QDate dia = QDate::fromString(Q(iso).left(10), Qt::ISODate);
    return dia.isValid() ? dia.toString(QStringLiteral("d/M/yyyy")) : Q(iso);
}

}  // namespace

Maqueta::Maqueta(const Documento& documento, Figuras& unasFiguras) : d(documento), figuras(unasFiguras)
{
    for (const Bloque& bloque : d.bloques)
        std::visit([this](const auto& b) { Agrega(b); }, bloque);
    Reparte();
}

QSizeF Maqueta::Tamano(int pagina) const
{
    const Medidas m = MedidasDe(d.hoja);
    const QSizeF tamano(m.ancho * Milimetro, m.alto * Milimetro);
    return Apaisada(pagina) ? tamano.transposed() : tamano;
}

double Maqueta::Ancho(bool apaisada) const
{
    const Medidas m = MedidasDe(d.hoja);
    return (apaisada ? m.alto : m.ancho) * Milimetro - 2 * Borde;
}

double Maqueta::Alto(bool apaisada) const
{
    const Medidas m = MedidasDe(d.hoja);
    return (apaisada ? m.ancho : m.alto) * Milimetro - 2 * Borde;
}

// --- from blocks to pieces ---

void Maqueta::Agrega(const Portada& b)
{
    Pieza p{.alto = Alto(), .salto = true};
    p.pinta = [this, &b](QCPPainter& pintor, double /*y*/) { PintaPortada(pintor, b); };
    piezas.push_back(std::move(p));
    salta = true;
}

void Maqueta::Agrega(const Indice& b)
{
    const Compuesto c = Compone(Llano(b.titulo), LetraDe(LetraDeTitulos[0], true), Ancho());
    const std::size_t desde = piezas.size();
    AgregaTexto(piezas, c, {.antes = AntesDeTitulos[0]}, Ancho());
    for (std::size_t i = desde; i < piezas.size(); ++i)
        piezas[i].conLaSiguiente = true;
    if (desde < piezas.size()) piezas[desde].salto = std::exchange(salta, false);
    int cual = 0;
    for (const Bloque& bloque : d.bloques)
        if (const auto* titulo = std::get_if<Titulo>(&bloque)) AgregaRenglonDeIndice(*titulo, cual++);
    piezas.push_back({.alto = EntreParrafos});
}

/// Title, dots, the number of a page that isn't known before all of them are set.
void Maqueta::AgregaRenglonDeIndice(const Titulo& b, int cual)
{
    constexpr double Cuerpo = 10.5, PorNivel = 14 * Punto, Numero = 30 * Punto, Aire = 5 * Punto;
    const QFont letra = LetraDe(Cuerpo, b.nivel == 1);
    const double x = (b.nivel - 1) * PorNivel;
    const double antes = b.nivel == 1 ? Aire : 0;
    Pieza p{.antes = antes, .alto = Renglon(letra), .renglonDeIndice = cual};
    const QString texto = QFontMetricsF(letra).elidedText(ConNumero(b), Qt::ElideRight, Ancho() - x - Numero);
    p.pinta = [this, texto, letra, x, cual](QCPPainter& pintor, double enY) {
        const QFontMetricsF m(letra);
        const QRectF renglon(x, enY, Ancho() - x, Renglon(letra));
        const QString numero = QString::number(titulos[static_cast<std::size_t>(cual)].pagina + 1);
        pintor.setFont(letra);
        pintor.setPen(QColor(ColorDeTexto));
        pintor.drawText(renglon, Qt::AlignLeft | Qt::AlignVCenter, texto);
        pintor.drawText(renglon, Qt::AlignRight | Qt::AlignVCenter, numero);
        const double desde = x + m.horizontalAdvance(texto) + Aire;
        const double hasta = Ancho() - m.horizontalAdvance(numero) - Aire;
        QPen puntos(QColor(ColorTenue), 0.8 * Punto, Qt::DotLine);
        puntos.setDashPattern({1, 4});
        pintor.setPen(puntos);
        const double base = enY + (renglon.height() - m.height()) / 2 + m.ascent();
        if (hasta > desde) pintor.drawLine(QPointF(desde, base), QPointF(hasta, base));
    };
    piezas.push_back(std::move(p));
}

void Maqueta::Agrega(const Titulo& b)
{
    const auto nivel = static_cast<std::size_t>(std::clamp(b.nivel, 1, 3)) - 1;
    const Compuesto c =
        Compone(Llano(forms::DeQ(ConNumero(b))), LetraDe(LetraDeTitulos[nivel], true), Ancho());
    const std::size_t desde = piezas.size();
    AgregaTexto(piezas, c, {.antes = AntesDeTitulos[nivel]}, Ancho());
    for (std::size_t i = desde; i < piezas.size(); ++i)
        piezas[i].conLaSiguiente = true;
    constexpr double Debajo = 3 * Punto;
    piezas.push_back({.alto = Debajo, .conLaSiguiente = true});
    piezas[desde].titulo = static_cast<int>(titulos.size());
    piezas[desde].salto = std::exchange(salta, false);
    titulos.push_back({forms::DeQ(ConNumero(b)), b.nivel});
}

void Maqueta::Agrega(const Parrafo& b)
{
    const double sangria = b.aviso ? 10 * Punto : 0;
    const Compuesto c = Compone(b.texto, LetraDe(LetraDeTexto), Ancho() - 2 * sangria,
                                b.aviso ? Qt::AlignLeft : Qt::AlignJustify);
    const std::size_t desde = piezas.size();
    AgregaTexto(piezas, c, {.sangria = sangria, .antes = EntreParrafos, .aviso = b.aviso}, Ancho());
    if (desde < piezas.size()) piezas[desde].salto = std::exchange(salta, false);
}

void Maqueta::Agrega(const Lista& b)
{
    int numero = 0;
    for (const Texto& texto : b.renglones) {
        const std::string guion = b.numerada ? std::to_string(++numero) + "." : "•";
        const double antes = &texto == &b.renglones.front() ? EntreParrafos : EntreParrafos / 3;
        const Compuesto c = Compone(texto, LetraDe(LetraDeTexto), Ancho() - Sangria);
        const std::size_t desde = piezas.size();
        AgregaTexto(piezas, c, {.sangria = Sangria, .antes = antes, .guion = guion}, Ancho());
        if (desde < piezas.size()) piezas[desde].salto = std::exchange(salta, false);
    }
}

void Maqueta::Agrega(const Formula& b)
{
    constexpr double Cuerpo = 11.5;
    const Compuesto c = Compone(b.texto, LetraDe(Cuerpo), Ancho() - 2 * Sangria, Qt::AlignHCenter);
    const std::size_t desde = piezas.size();
    AgregaTexto(piezas, c, {.sangria = Sangria, .antes = EntreParrafos}, Ancho());
    for (std::size_t i = desde; i + 1 < piezas.size(); ++i)
        piezas[i].conLaSiguiente = true;
    if (desde > 0 && desde < piezas.size()) piezas[desde - 1].conLaSiguiente = true;  // who announces it
    if (desde < piezas.size()) piezas[desde].salto = std::exchange(salta, false);
}

void Maqueta::Agrega(const Tabla& b)
{
    const std::size_t desde = piezas.size();
    AgregaTabla(piezas, b, Ancho(), Ancho(true));
    if (desde < piezas.size()) piezas[desde].salto = std::exchange(salta, false);
}

void Maqueta::Agrega(const FiguraPuesta& b)
{
    constexpr double Aire = 4 * Punto, Antes = 10 * Punto, Despues = 10 * Punto, Cuerpo = 9.5;
    Texto texto{{"Figura " + std::to_string(b.numero) + ". ", true}};
    texto.push_back({b.titulo});
    const QSizeF enPapel = figuras.Tamano(b.figura) * Milimetro;
    if (enPapel.isEmpty()) {
        Tramo falta;  // g++ 12 sees the text of an unnamed one copied beyond its end
        falta.texto = " No hay datos para dibujarla.";
        falta.cursiva = true;
        texto.push_back(std::move(falta));
    }
    const Compuesto rotulo = Compone(texto, LetraDe(Cuerpo), Ancho(), Qt::AlignHCenter);
    const double cabe = Alto() - rotulo.Alto() - Aire - Antes;
    const QSizeF tamano = enPapel.boundedTo({Ancho(), cabe}) == enPapel
                              ? enPapel
                              : enPapel.scaled(Ancho(), cabe, Qt::KeepAspectRatio);
    if (!enPapel.isEmpty()) {
        Pieza p{.antes = Antes, .alto = tamano.height(), .conLaSiguiente = true};
        p.salto = std::exchange(salta, false);
        p.pinta = [this, tamano, &b](QCPPainter& pintor, double enY) {
            figuras.Pinta(pintor, QRectF(QPointF((Ancho() - tamano.width()) / 2, enY), tamano), b.figura);
        };
        piezas.push_back(std::move(p));
    }
    Pieza pie{.antes = Aire, .alto = rotulo.Alto(), .salto = std::exchange(salta, false)};
    pie.pinta = [rotulo](QCPPainter& pintor, double enY) {
        pintor.setPen(QColor(ColorDeTexto));
        rotulo.Pinta(pintor, 0, enY);
    };
    piezas.push_back(std::move(pie));
    piezas.push_back({.alto = Despues});
}

void Maqueta::Agrega(const SaltoDePagina& /*b*/)
{
    salta = true;
}

// --- from pieces to pages ---

void Maqueta::NuevaPagina(bool apaisada)
{
    paginas.push_back({apaisada, {}});
    y = 0;
}

/// Height of a piece with those that it must stand with.
double Maqueta::AltoDeCadena(std::size_t desde) const
{
    double alto = piezas[desde].alto;
    for (std::size_t i = desde; piezas[i].conLaSiguiente && i + 1 < piezas.size(); ++i)
        alto += piezas[i + 1].antes + piezas[i + 1].alto;
    return alto;
}

void Maqueta::Coloca(const Pieza& pieza)
{
    Pagina& pagina = paginas.back();
    if (pagina.puestas.empty()) {
        if (!pieza.pinta) return;  // room between pieces has none to part here
        if (pieza.cabeza != nullptr) {
            pagina.puestas.push_back({pieza.cabeza.get(), 0});
            y = pieza.cabeza->alto;
        }
    } else {
        y += pieza.antes;
    }
    const int cual = Paginas() - 1;
    if (pieza.titulo >= 0) {
        LugarDeTitulo& lugar = titulos[static_cast<std::size_t>(pieza.titulo)];
        lugar.pagina = cual;
        lugar.y = Borde + y;
    }
    if (pieza.renglonDeIndice >= 0)
        enlaces.push_back({cual, QRectF(Borde, Borde + y, Ancho(), pieza.alto), pieza.renglonDeIndice});
    if (pieza.pinta) pagina.puestas.push_back({&pieza, y});
    y += pieza.alto;
}

void Maqueta::Reparte()
{
    NuevaPagina(false);
    std::size_t libre = 0;  // up to here pieces stand with those before
    for (std::size_t i = 0; i < piezas.size(); ++i) {
        const Pieza& p = piezas[i];
        const bool vacia = paginas.back().puestas.empty();
        const bool otraHoja = p.pinta && p.apaisada != paginas.back().apaisada;
        if (i >= libre) {
            const double alto = Alto(paginas.back().apaisada);
            const bool entra = y + (vacia ? 0 : p.antes) + AltoDeCadena(i) <= alto;
            // A chain longer than a page is cut where it comes to its end.
            const bool suelta = vacia || (!entra && AltoDeCadena(i) > alto && y + p.antes + p.alto <= alto);
            if (otraHoja || (!vacia && (p.salto || (!entra && p.pinta && !suelta)))) {
                if (vacia)
                    paginas.back().apaisada = p.apaisada;
                else
                    NuevaPagina(p.apaisada);
            }
            libre = i + 1;
            if (AltoDeCadena(i) <= Alto(paginas.back().apaisada))
                while (piezas[libre - 1].conLaSiguiente && libre < piezas.size())
                    ++libre;
        }
        Coloca(p);
    }
    if (paginas.back().puestas.empty() && paginas.size() > 1) paginas.pop_back();
}

// --- pages ---

void Maqueta::Pinta(int pagina, QCPPainter& pintor) const
{
    const bool portada = pagina == 0 && !d.bloques.empty() && std::holds_alternative<Portada>(d.bloques[0]);
    pintor.save();
    if (!portada) PintaBordes(pintor, pagina);
    pintor.translate(Borde, Borde);
    for (const Puesta& puesta : De(pagina).puestas)
        puesta.pieza->pinta(pintor, puesta.y);
    pintor.restore();
}

void Maqueta::PintaBordes(QCPPainter& pintor, int pagina) const
{
    constexpr double DelBorde = 12 * Milimetro, Alto = 14 * Punto, Raya = 0.5 * Punto;
    const QSizeF hoja = Tamano(pagina);
    const QFont letra = LetraDe(LetraDeBorde);
    const QFontMetricsF m(letra);
    const double ancho = hoja.width() - 2 * Borde;
    pintor.setFont(letra);
    const auto renglon = [&](double enY, double raya, const QString& izquierda, const QString& derecha) {
        const QRectF caja(Borde, enY, ancho, Alto);
        constexpr double Entre = 12 * Punto;
        const double queda = ancho - m.horizontalAdvance(derecha) - Entre;
        pintor.setPen(QColor(ColorTenue));
        pintor.drawText(caja, Qt::AlignLeft | Qt::AlignVCenter,
                        m.elidedText(izquierda, Qt::ElideRight, queda));
        pintor.drawText(caja, Qt::AlignRight | Qt::AlignVCenter, derecha);
        pintor.setPen(QPen(QColor(ColorDeRaya), Raya));
        pintor.drawLine(QPointF(Borde, raya), QPointF(Borde + ancho, raya));
    };
    const double abajo = hoja.height() - DelBorde - Alto;
    renglon(DelBorde, DelBorde + Alto, Q(d.titulo), Dia(d.fecha));
    renglon(abajo, abajo, Q(d.pie), QStringLiteral("Página %1 de %2").arg(pagina + 1).arg(Paginas()));
}

void Maqueta::PintaLogo(QCPPainter& pintor) const
{
    constexpr double MayorAncho = 70 * Milimetro, MayorAlto = 35 * Milimetro;
    if (d.logo.empty()) return;
    const auto bytes = QByteArray::fromStdString(d.logo);
    const Medidas m = MedidasDeImagen(d.logo);
    if (!(m.ancho > 0 && m.alto > 0)) return;
    const QSizeF tamano = QSizeF(m.ancho, m.alto).scaled(MayorAncho, MayorAlto, Qt::KeepAspectRatio);
    const QRectF sitio(QPointF((Ancho() - tamano.width()) / 2, 0), tamano);
    pintor.setRenderHint(QPainter::LosslessImageRendering);  // a drawing, unlike maps
    if (TipoDeImagen(d.logo) == "image/svg+xml")
        QSvgRenderer(bytes).render(&pintor, sitio);
    else
        pintor.drawImage(sitio, QImage::fromData(bytes));
    pintor.setRenderHint(QPainter::LosslessImageRendering, false);
}

void Maqueta::PintaPortada(QCPPainter& pintor, const Portada& b) const
{
    constexpr double Cuerpo = 11, Grande = 26, Mediana = 15;
    constexpr double EnAltoDeTitulo = 0.24, EnAltoDeDatos = 0.52, Columna = 0.32, Raya = 1.2 * Punto;
    PintaLogo(pintor);
    pintor.setPen(QColor(ColorDeTexto));
    const double ancho = Ancho();
    double enY = Alto() * EnAltoDeTitulo;
    const auto centrado = [&](const std::string& texto, const QFont& letra) {
        if (texto.empty()) return;
        const Compuesto c = Compone(Llano(texto), letra, ancho, Qt::AlignHCenter);
        c.Pinta(pintor, 0, enY);
        enY += c.Alto() + EntreParrafos;
    };
    centrado(b.titulo, LetraDe(Grande, true));
    pintor.setPen(QPen(QColor(ColorDeBarra), Raya));
    pintor.drawLine(QPointF(ancho / 4, enY + EntreParrafos), QPointF(3 * ancho / 4, enY + EntreParrafos));
    enY += 3 * EntreParrafos;
    pintor.setPen(QColor(ColorDeTexto));
    centrado(b.subtitulo, LetraDe(Mediana));
    enY = std::max(enY + 2 * EntreParrafos, Alto() * EnAltoDeDatos);
    for (const auto& [que, valor] : b.renglones) {
        const Compuesto izquierda =
            Compone(Llano(que), LetraDe(Cuerpo, true), ancho * Columna - EntreParrafos, Qt::AlignRight);
        const Compuesto derecha =
            Compone(Llano(valor), LetraDe(Cuerpo), ancho * (1 - Columna) - EntreParrafos);
        izquierda.Pinta(pintor, 0, enY);
        derecha.Pinta(pintor, ancho * Columna + EntreParrafos, enY);
        enY += std::max(izquierda.Alto(), derecha.Alto()) + EntreParrafos / 2;
    }
    enY = Alto() - 2 * Renglon(LetraDe(Mediana)) - 2 * EntreParrafos;
    centrado(b.autor, LetraDe(Mediana));
    centrado(b.fecha, LetraDe(Cuerpo));
}

}  // namespace report
