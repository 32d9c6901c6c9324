// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/AcabadoPdf_ventana.h"

#include <QMap>
#include <QRegularExpression>
#include <algorithm>
#include <cstddef>

namespace report {
namespace {

/// The objects of a file as its table tells them.
struct Archivo {
    QByteArray bytes{};
    qsizetype tabla = -1;         ///< where its table begins
    int objetos = 0;              ///< one more than the last number
    int catalogo = 0, datos = 0;  ///< objects /Root, /Info
    QList<qsizetype> lugares{};   ///< by object
    QList<int> paginas{};         ///< objects, in their order
    QList<int> anotaciones{};     ///< of each page its list of annotations
    [[nodiscard]] bool Vale() const { return tabla >= 0 && catalogo > 0 && !paginas.isEmpty(); }

    [[nodiscard]] QByteArray Objeto(int cual) const
    {
        if (cual < 1 || cual >= lugares.size()) return {};
        const qsizetype desde = lugares[cual];
        const qsizetype hasta = bytes.indexOf("endobj", desde);
        return hasta < 0 ? QByteArray() : bytes.mid(desde, hasta - desde);
    }
};

/// The number behind a key; 0 without it.
int Tras(const QByteArray& texto, const char* clave)
{
    const QRegularExpression busca(QLatin1String(clave) + QStringLiteral("\\s+(\\d+)"));
    return busca.match(QString::fromLatin1(texto)).captured(1).toInt();
}

Archivo Lee(const QByteArray& pdf)
{
    Archivo a{.bytes = pdf};
    const qsizetype fin = pdf.lastIndexOf("startxref");
    const qsizetype cola = pdf.lastIndexOf("trailer");
    if (fin < 0 || cola < 0) return {};
    const qsizetype tabla = Tras(pdf.mid(fin), "startxref");
    a.objetos = Tras(pdf.mid(cola, fin - cola), "/Size");
    a.catalogo = Tras(pdf.mid(cola, fin - cola), "/Root");
    a.datos = Tras(pdf.mid(cola, fin - cola), "/Info");
    const QList<QByteArray> renglones = pdf.mid(tabla, cola - tabla).split('\n');
    if (renglones.size() < a.objetos + 2 || !renglones.front().startsWith("xref")) return {};
    for (int i = 0; i < a.objetos; ++i)
        a.lugares.append(renglones[i + 2].left(10).toLongLong());
    const QByteArray arbol = a.Objeto(Tras(a.Objeto(a.catalogo), "/Pages"));
    const qsizetype hijos = arbol.indexOf("/Kids");
    static const QRegularExpression Hijo(QStringLiteral("(\\d+)\\s+0\\s+R"));
    auto cada = Hijo.globalMatch(QString::fromLatin1(arbol.mid(hijos, arbol.indexOf(']', hijos) - hijos)));
    while (cada.hasNext()) {
        a.paginas.append(cada.next().captured(1).toInt());
        a.anotaciones.append(Tras(a.Objeto(a.paginas.last()), "/Annots"));
    }
    a.tabla = tabla;
    return a;
}

QByteArray Numero(double x)
{
    return QByteArray::number(x, 'f', 2);
}

/// A text as UTF-16 in hexadecimal digits.
QByteArray Texto(const QString& texto)
{
    QByteArray t = "<FEFF";
    for (const QChar c : texto)
        t += QByteArray::number(c.unicode(), 16).rightJustified(4, '0').toUpper();
    return t + ">";
}

/// New objects and new versions of old ones.
class Agregado {
  public:
    explicit Agregado(Archivo& unArchivo) : a(unArchivo), siguiente(a.objetos) {}
    int Nuevo() { return siguiente++; }
    void Pon(int numero, const QByteArray& cuerpo) { objetos[numero] = cuerpo; }
    [[nodiscard]] QByteArray Destino(const MarcadorPdf& m) const
    {
        const int pagina = a.paginas[std::clamp<qsizetype>(m.pagina, 0, a.paginas.size() - 1)];
        return "[" + QByteArray::number(pagina) + " 0 R /XYZ 0 " + Numero(m.alto) + " 0]";
    }
    [[nodiscard]] QByteArray Cierra() const
    {
        QByteArray todo = a.bytes, tabla = "xref\n";
        if (!todo.endsWith('\n')) todo += '\n';
        for (auto o = objetos.cbegin(); o != objetos.cend(); ++o) {
            tabla += QByteArray::number(o.key()) + " 1\n" +
                     QByteArray::number(todo.size()).rightJustified(10, '0') + " 00000 n \n";
            todo += QByteArray::number(o.key()) + " 0 obj\n" + o.value() + "\nendobj\n";
        }
        const QByteArray desde = QByteArray::number(todo.size());
        return todo + tabla + "trailer\n<<\n/Size " + QByteArray::number(siguiente) + "\n/Info " +
               QByteArray::number(a.datos) + " 0 R\n/Root " + QByteArray::number(a.catalogo) +
               " 0 R\n/Prev " + QByteArray::number(a.tabla) + "\n>>\nstartxref\n" + desde + "\n%%EOF\n";
    }

  private:
    Archivo& a;
    int siguiente;
    QMap<int, QByteArray> objetos{};
};

/// Lines of an outline are tied to parent, neighbours, first and last of their own.
struct Nudo {
    int objeto = 0;
    int padre = -1, primero = -1, ultimo = -1, anterior = -1, siguiente = -1;  // -1: none
    int cuantos = 0;                                                           ///< below it
};

std::vector<Nudo> NudosDe(const std::vector<MarcadorPdf>& marcadores, Agregado& agregado)
{
    std::vector<Nudo> nudos(marcadores.size());
    std::vector<int> abiertos;  // the last of each level
    for (std::size_t i = 0; i < marcadores.size(); ++i) {
        Nudo& n = nudos[i];
        n.objeto = agregado.Nuevo();
        const auto nivel =
            std::min(static_cast<std::size_t>(std::max(marcadores[i].nivel, 1) - 1), abiertos.size());
        if (nivel > 0) {
            n.padre = abiertos[nivel - 1];
            Nudo& padre = nudos[static_cast<std::size_t>(n.padre)];
            if (padre.primero < 0) padre.primero = static_cast<int>(i);
            padre.ultimo = static_cast<int>(i);
            ++padre.cuantos;
        }
        if (nivel < abiertos.size()) {
            n.anterior = abiertos[nivel];
            nudos[static_cast<std::size_t>(n.anterior)].siguiente = static_cast<int>(i);
        }
        abiertos.resize(nivel);
        abiertos.push_back(static_cast<int>(i));
    }
    return nudos;
}

void PonMarcadores(Agregado& agregado, const Archivo& a, const std::vector<MarcadorPdf>& marcadores)
{
    const int raiz = agregado.Nuevo();
    const std::vector<Nudo> nudos = NudosDe(marcadores, agregado);
    const auto lazo = [&](const char* clave, int cual) {
        if (cual < 0) return QByteArray();
        return QByteArray(clave) + " " + QByteArray::number(nudos[static_cast<std::size_t>(cual)].objeto) +
               " 0 R\n";
    };
    int arriba = 0, ultimo = 0;
    for (std::size_t i = 0; i < nudos.size(); ++i) {
        const Nudo& n = nudos[i];
        if (n.padre < 0) {
            ++arriba;
            ultimo = n.objeto;
        }
        QByteArray cuerpo =
            "<<\n/Title " + Texto(marcadores[i].titulo) + "\n/Parent " +
            (n.padre < 0 ? QByteArray::number(raiz) + " 0 R\n" : lazo("", n.padre).trimmed() + "\n") +
            lazo("/Prev", n.anterior) + lazo("/Next", n.siguiente) + lazo("/First", n.primero) +
            lazo("/Last", n.ultimo);
        if (n.cuantos > 0) cuerpo += "/Count -" + QByteArray::number(n.cuantos) + "\n";
        agregado.Pon(n.objeto, cuerpo + "/Dest " + agregado.Destino(marcadores[i]) + "\n>>");
    }
    agregado.Pon(raiz, "<<\n/Type /Outlines\n/First " + QByteArray::number(nudos.front().objeto) +
                           " 0 R\n/Last " + QByteArray::number(ultimo) + " 0 R\n/Count " +
                           QByteArray::number(arriba) + "\n>>");
    QByteArray catalogo = a.Objeto(a.catalogo);
    catalogo = catalogo.mid(catalogo.indexOf("<<"));
    catalogo = catalogo.left(catalogo.lastIndexOf(">>"));
    agregado.Pon(a.catalogo, catalogo + "/Outlines " + QByteArray::number(raiz) +
                                 " 0 R\n/PageMode /UseOutlines\n/Lang (es)\n>>");
}

void PonEnlaces(Agregado& agregado, const Archivo& a, const std::vector<MarcadorPdf>& marcadores,
                const std::vector<EnlacePdf>& enlaces)
{
    QMap<int, QByteArray> porPagina;
    for (const EnlacePdf& e : enlaces) {
        const int objeto = agregado.Nuevo();
        agregado.Pon(objeto, "<<\n/Type /Annot\n/Subtype /Link\n/Border [0 0 0]\n/Rect [" +
                                 Numero(e.caja.left()) + " " + Numero(e.caja.top()) + " " +
                                 Numero(e.caja.right()) + " " + Numero(e.caja.bottom()) + "]\n/Dest " +
                                 agregado.Destino(marcadores[static_cast<std::size_t>(e.marcador)]) + "\n>>");
        porPagina[e.pagina] += QByteArray::number(objeto) + " 0 R ";
    }
    for (auto p = porPagina.cbegin(); p != porPagina.cend(); ++p)
        if (p.key() < a.anotaciones.size() && a.anotaciones[p.key()] > 0)
            agregado.Pon(a.anotaciones[p.key()], "[" + p.value() + "]");
}

/// The moment at which the file was made stands in it as digits; others in their place leave all else where
/// it is.
void PonFecha(Archivo& a, const QByteArray& fecha)
{
    constexpr qsizetype Cifras = 14;
    if (fecha.size() != Cifras || a.datos < 1 || a.datos >= a.lugares.size()) return;
    const QByteArray clave = "/CreationDate (D:";
    const qsizetype desde = a.bytes.indexOf(clave, a.lugares[a.datos]);
    if (desde >= 0) a.bytes.replace(desde + clave.size(), Cifras, fecha);
}

}  // namespace

QByteArray Acaba(const QByteArray& pdf, const std::vector<MarcadorPdf>& marcadores,
                 const std::vector<EnlacePdf>& enlaces, const QByteArray& fecha)
{
    Archivo a = Lee(pdf);
    if (!a.Vale()) return pdf;
    PonFecha(a, fecha);
    if (marcadores.empty()) return a.bytes;
    Agregado agregado(a);
    PonMarcadores(agregado, a, marcadores);
    PonEnlaces(agregado, a, marcadores, enlaces);
    return agregado.Cierra();
}

}  // namespace report
