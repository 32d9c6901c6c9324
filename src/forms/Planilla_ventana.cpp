// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Planilla_ventana.h"

#include <locale.h>
#include <xlsxwriter.h>

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QMenu>
#include <QTemporaryDir>
#include <algorithm>
#include <map>
#include <vector>

#include "forms/Csv.h"
#include "forms/SignoDecimal_ventana.h"
#include "forms/Textos_ventana.h"
#include "model/Avisos.h"
#include "model/Falla.h"
#include "model/Numeros.h"
#include "model/Siro.h"

namespace forms {

namespace {

constexpr char NombreDeHoja[] = "SIRO";

void Exige(lxw_error resultado)
{
    if (resultado != LXW_NO_ERROR) throw model::Falla{model::NumeroFalla::AccesoRuta};
}

/// The library writes numbers with the decimal sign of the process, which the toolkit takes from the desktop;
/// a workbook has a point wherever it is written.
class NumerosConPunto {
  public:
#if defined(_WIN32)
    NumerosConPunto()
        : porHilo(_configthreadlocale(_ENABLE_PER_THREAD_LOCALE)), antes(setlocale(LC_NUMERIC, nullptr))
    {
        setlocale(LC_NUMERIC, "C");
    }
    ~NumerosConPunto()
    {
        setlocale(LC_NUMERIC, antes.c_str());
        _configthreadlocale(porHilo);
    }
    NumerosConPunto(const NumerosConPunto&) = delete;
    NumerosConPunto& operator=(const NumerosConPunto&) = delete;

  private:
    int porHilo;
    std::string antes;
#else
    NumerosConPunto()
        : conPunto(newlocale(LC_NUMERIC_MASK, "C", duplocale(LC_GLOBAL_LOCALE))), antes(uselocale(conPunto))
    {
    }
    ~NumerosConPunto()
    {
        uselocale(antes);
        freelocale(conPunto);
    }
    NumerosConPunto(const NumerosConPunto&) = delete;
    NumerosConPunto& operator=(const NumerosConPunto&) = delete;

  private:
    locale_t conPunto, antes;
#endif
};

/// A workbook in the making; one that isn't closed leaves no file.
class Libro {
  public:
    Libro(const std::string& archivo, std::string carpeta) : temporales(std::move(carpeta))
    {
        lxw_workbook_options opciones{};
        opciones.tmpdir = temporales.data();
        libro = workbook_new_opt(archivo.c_str(), &opciones);
        centrado = workbook_add_format(libro);
        encabezado = workbook_add_format(libro);
        format_set_bold(encabezado);
        format_set_bottom(encabezado, LXW_BORDER_THIN);
        for (lxw_format* const formato : {centrado, encabezado})
            format_set_align(formato, LXW_ALIGN_CENTER);
    }
    ~Libro()
    {
        if (libro != nullptr) lxw_workbook_free(libro);
    }
    Libro(const Libro&) = delete;
    Libro& operator=(const Libro&) = delete;

    void Agrega(const HojaDeLibro& una)
    {
        planilla = una.planilla;
        hoja = workbook_add_worksheet(libro, una.nombre.c_str());
        if (hoja == nullptr) throw model::Falla{model::NumeroFalla::AccesoRuta};
        deNumero.clear();
        for (const ColumnaPlanilla& columna : planilla.columnas)
            deNumero.push_back(columna.formato.empty() ? centrado : DeNumero(columna.formato));
        lxw_row_t fila = 0;
        for (const std::string& t : planilla.titulos)
            PonTitulo(fila++, t);
        for (std::size_t c = 0; c < planilla.columnas.size(); ++c)
            Exige(worksheet_write_string(hoja, fila, Columna(c), planilla.columnas[c].encabezado.c_str(),
                                         encabezado));
        PonPagina(fila);
        worksheet_freeze_panes(hoja, ++fila, 0);
        PonAnchos();
        for (const std::vector<std::string>& celdas : planilla.filas)
            PonFila(fila++, celdas);
    }
    void Cierra()
    {
        lxw_workbook* const cerrado = libro;
        libro = nullptr;
        Exige(workbook_close(cerrado));
    }

  private:
    static lxw_col_t Columna(std::size_t c) { return static_cast<lxw_col_t>(c); }

    /// Centred numbers in a form of their own; columns of the same form share it.
    lxw_format* DeNumero(const std::string& forma)
    {
        lxw_format*& formato = formatos[forma];
        if (formato == nullptr) {
            formato = workbook_add_format(libro);
            format_set_align(formato, LXW_ALIGN_CENTER);
            format_set_num_format(formato, forma.c_str());
        }
        return formato;
    }
    /// On paper as wide as a page, as long as it takes, the headings on each.
    void PonPagina(lxw_row_t encabezados)
    {
        constexpr std::uint8_t A4 = 9;
        worksheet_set_paper(hoja, A4);
        worksheet_fit_to_pages(hoja, 1, 0);
        Exige(worksheet_repeat_rows(hoja, encabezados, encabezados));
        Exige(worksheet_set_footer(hoja, "&RPágina &P de &N"));
    }
    void PonTitulo(lxw_row_t fila, const std::string& t)
    {
        if (planilla.columnas.size() < 2)
            Exige(worksheet_write_string(hoja, fila, 0, t.c_str(), centrado));
        else
            Exige(worksheet_merge_range(hoja, fila, 0, fila, Columna(planilla.columnas.size() - 1), t.c_str(),
                                        centrado));
    }
    void PonFila(lxw_row_t fila, const std::vector<std::string>& celdas)
    {
        for (std::size_t c = 0; c < planilla.columnas.size(); ++c) {
            const std::string& celda = celdas[c];
            if (EsNumero(planilla.columnas[c], celda))
                Exige(worksheet_write_number(hoja, fila, Columna(c), model::Val(celda), deNumero[c]));
            else if (!celda.empty())
                Exige(worksheet_write_string(hoja, fila, Columna(c), celda.c_str(), nullptr));
        }
    }
    /// Each column as wide as its widest cell [characters].
    void PonAnchos()
    {
        constexpr qsizetype LoMenos = 10, LoMas = 60, Aire = 2;
        for (std::size_t c = 0; c < planilla.columnas.size(); ++c) {
            qsizetype ancho = Q(planilla.columnas[c].encabezado).size();
            for (const std::vector<std::string>& celdas : planilla.filas)
                ancho = std::max(ancho, Q(celdas[c]).size());
            Exige(worksheet_set_column(hoja, Columna(c), Columna(c),
                                       static_cast<double>(std::clamp(ancho + Aire, LoMenos, LoMas)),
                                       nullptr));
        }
    }

    Planilla planilla{};  ///< of the sheet in hand
    std::string temporales;
    lxw_workbook* libro = nullptr;
    lxw_worksheet* hoja = nullptr;
    lxw_format *centrado = nullptr, *encabezado = nullptr;
    std::map<std::string, lxw_format*> formatos{};
    std::vector<lxw_format*> deNumero{};  ///< by column
};

void Guarda(Entorno& entorno, std::string_view pregunta, std::string_view filtro, const std::string& nombre,
            const std::function<std::string()>& bytes)
{
    const std::string ruta = entorno.s.Anfitrion.EligeDestino(pregunta, filtro, nombre);
    if (ruta.empty()) return;
    model::Sentencia([&] { entorno.s.Disco.Escribe(ruta, bytes()); }, model::AvisaArchivo(entorno.s));
}

}  // namespace

std::string ComoXlsx(const Planilla& planilla)
{
    return ComoXlsx(std::vector<HojaDeLibro>{{NombreDeHoja, planilla}});
}

std::string ComoXlsx(const std::vector<HojaDeLibro>& hojas)
{
    const NumerosConPunto conPunto;
    const QTemporaryDir carpeta;
    const QString archivo = carpeta.filePath(QStringLiteral("planilla.xlsx"));
    Libro libro(DeQ(archivo), DeQ(carpeta.path()));
    for (const HojaDeLibro& hoja : hojas)
        libro.Agrega(hoja);
    libro.Cierra();
    QFile escrito(archivo);
    if (!escrito.open(QIODevice::ReadOnly)) throw model::Falla{model::NumeroFalla::AccesoRuta};
    return escrito.readAll().toStdString();
}

void CopiaPlanilla(Entorno& entorno, const Planilla& planilla)
{
    QGuiApplication::clipboard()->setText(Q(ComoTexto(planilla, SignoElegido(entorno))));
}

void GuardaCsv(Entorno& entorno, std::string_view nombre, const DaPlanilla& planilla)
{
    Guarda(entorno, "Guardar la tabla como CSV", "Tabla CSV |*.csv", std::string(nombre).append(".csv"),
           [&] { return std::string(MarcaUtf8).append(ComoCsv(planilla(), SignoElegido(entorno))); });
}

void GuardaXlsx(Entorno& entorno, std::string_view nombre, const DaPlanilla& planilla)
{
    Guarda(entorno, "Guardar la tabla como XLSX", "Libro XLSX |*.xlsx", std::string(nombre).append(".xlsx"),
           [&] { return ComoXlsx(planilla()); });
}

void GuardaLibro(Entorno& entorno, std::string_view nombre,
                 const std::function<std::vector<HojaDeLibro>()>& hojas)
{
    Guarda(entorno, "Guardar las tablas como XLSX", "Libro XLSX |*.xlsx", std::string(nombre).append(".xlsx"),
           [&] { return ComoXlsx(hojas()); });
}

void AgregaPlanilla(QMenu& menu, Entorno& entorno, std::string_view nombre, const DaPlanilla& planilla)
{
    const auto entrada = [&](const char* leyenda, const char* control, auto rutina) {
        QAction* const accion = menu.addAction(QString::fromUtf8(leyenda));
        accion->setObjectName(QString::fromUtf8(control));
        QObject::connect(accion, &QAction::triggered, &menu, [&entorno, rutina] { entorno.Atiende(rutina); });
        return accion;
    };
    const std::string propuesto(nombre);
    entrada("Copiar la &tabla entera", "mnuCopiaTabla",
            [&entorno, planilla] { CopiaPlanilla(entorno, planilla()); });
    entrada("Guardar como C&SV...", "mnuGuardaCsv",
            [&entorno, propuesto, planilla] { GuardaCsv(entorno, propuesto, planilla); });
    entrada("Guardar como &XLSX...", "mnuGuardaXlsx",
            [&entorno, propuesto, planilla] { GuardaXlsx(entorno, propuesto, planilla); });
    AgregaSignoDecimal(menu, entorno);
}

}  // namespace forms
