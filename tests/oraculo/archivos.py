# SPDX-License-Identifier: GPL-3.0-or-later
"""Readers of the project files, and the rewriting of a moved project's configuration."""
from modelo import (
    DURACIONES,
    RECURRENCIAS,
    Cauce,
    Lago,
    Manejador,
    Represa,
    UEH,
    camino,
    texto_error_lector,
    texto_error_motor,
)
from numeros import (
    Falla,
    Matriz,
    Vector,
    f32,
    i16,
    i32,
    numero_inicial,
    redondea_i32,
    suma16,
    texto64,
)
from registros import (
    Lector,
    SinAbrir,
    abre_o_nada,
    como_f32,
    como_i16,
    como_logico,
    como_texto,
    escribe_todo,
    f32_escrito,
    logico_escrito,
    renglon,
    texto_citado,
)

# ------------------------------------------------------------------------------------ configuration


def leoConf(s):
    """Reads the configuration of NombreProyecto in DirProyecto."""
    try:
        _lee_configuracion(s)
    except Falla as falla:
        aviso = texto_error_motor(falla) + "."
        if falla.numero == 62:
            aviso += (
                " El archivo de configuración <"
                + s.NombreProyecto
                + "_Conf.vlm > está dañado. Corrija o elimine manualmente este archivo"
            )
        s.anfitrion.avisa(aviso)
        if falla.numero == 62:
            s.NombreProyecto = ""
        s.marca_reescribir = False


def _sin_unidad(directorio):
    """A directory without its drive, which takes the first two characters where the second is a colon."""
    return directorio[2:] if directorio[1:2] == ":" else directorio


def _lee_configuracion(s):
    c = s.controles
    c["Dir1"] = s.DirProyecto
    c["Drive1"] = ""
    lector = Lector(camino(s.DirProyecto, s.NombreProyecto + "_Conf.vlm"))
    s.NombreProyecto = lector.uno(como_texto)
    s.TituloProyecto = c["TextProyecto"] = lector.uno(como_texto)
    s.Ubicacion = c["TextUbica"] = lector.uno(como_texto)
    s.Cuenca = c["TextCuenca"] = lector.uno(como_texto)
    s.Subcuenca = c["TextSbca"] = lector.uno(como_texto)
    s.Operador = c["TextOpera"] = lector.uno(como_texto)
    s.FechaProyecto = c["txtFecha"] = lector.uno(como_texto)
    s.DriveProyecto = lector.uno(como_texto)  # no drive is there: Drive1 stays empty
    s.DirProyectoConf = lector.uno(como_texto)
    movido = s.DriveProyecto != c["Drive1"]
    if movido or _sin_unidad(s.DirProyecto) != _sin_unidad(s.DirProyectoConf):
        s.DirProyectoConf = s.DirProyecto
        s.marca_reescribir = True
    c["Dir1"] = s.DirProyectoConf
    s.DirProyecto = s.DirProyectoConf
    c["TextDirNv"] = lector.uno(como_texto)
    c["CheckDistriPp"] = lector.uno(como_i16)
    c["lblMiArchivoConf"] = lector.uno(como_texto)
    c["chkImagenDibujo"] = lector.uno(como_i16)
    c["lblImagenDibujo"] = lector.uno(como_texto)
    s.EscalaImagen = numero_inicial(lector.uno(como_texto))
    c["TexIMGEscala"] = texto64(s.EscalaImagen)
    c["TexS"] = lector.uno(como_texto)
    for opcion in ("Optiona", "Optionb", "Optionc"):
        c[opcion] = lector.uno(como_logico)
    s.ImagenX0 = f32(numero_inicial(lector.uno(como_texto)))
    s.ImagenY0 = f32(numero_inicial(lector.uno(como_texto)))
    for opcion in ("OptionMin", "OptionHr", "Optionm3", "OptionLt"):
        c[opcion] = lector.uno(como_logico)
    s.N0Dur = lector.uno(como_f32)
    c["txtMaxUEHsPixel"] = lector.uno(como_texto)
    c["txtEscalaImagen"] = lector.uno(como_texto)
    c["txtEscalaImagen"] = c["txtEscalaImagen"].replace(",", ".")
    s.EscalaDibujo = texto64(numero_inicial(c["txtEscalaImagen"]))
    for r in RECURRENCIAS:
        valor = lector.uno(como_i16)
        c["CheckR%d" % r] = valor
        # kept as it stands: the box of 5000 years goes into the flag of 500, and 5000 never gets one
        s.FlagR[500 if r == 5000 else r] = valor
    for d in DURACIONES:
        s.FlagD[d] = c["CheckD%d" % d] = lector.uno(como_i16)
    if s.marca_reescribir:
        cmdAplicar(s)
        s.marca_reescribir = False
    s.ListaRec = [r for r in RECURRENCIAS if c["CheckR%d" % r] == 1]
    s.ListaDur = [d for d in DURACIONES if c["CheckD%d" % d] == 1]


def cmdAplicar(s):
    """Writes the configuration from the dialog's controls."""
    c = s.controles
    if s.NombreProyecto == "":
        s.DirProyectoConf = c["Dir1"]
        s.DriveProyecto = c["Drive1"]
        return
    if c["chkImagenDibujo"] == 1 and c["lblImagenDibujo"] == "Ninguno":
        c["chkImagenDibujo"] = 0
    s.DirProyecto = c["Dir1"]
    ruta = camino(s.DirProyecto, s.NombreProyecto + "_Conf.vlm")
    escritos = [
        texto_citado(s.NombreProyecto),
        texto_citado(c["TextProyecto"]),
        texto_citado(c["TextUbica"]),
        texto_citado(c["TextCuenca"]),
        texto_citado(c["TextSbca"]),
        texto_citado(c["TextOpera"]),
        texto_citado(c["txtFecha"]),
        texto_citado(c["Drive1"]),
        texto_citado(c["Dir1"]),
        texto_citado(c["TextDirNv"]),
        str(c["CheckDistriPp"]),
        texto_citado(c["lblMiArchivoConf"]),
        str(c["chkImagenDibujo"]),
        texto_citado(c["lblImagenDibujo"]),
        texto_citado(c["TexIMGEscala"]),
        texto_citado(c["TexS"]),
        logico_escrito(c["Optiona"]),
        logico_escrito(c["Optionb"]),
        logico_escrito(c["Optionc"]),
        f32_escrito(s.ImagenX0),
        f32_escrito(s.ImagenY0),
        logico_escrito(c["OptionMin"]),
        logico_escrito(c["OptionHr"]),
        logico_escrito(c["Optionm3"]),
        logico_escrito(c["OptionLt"]),
        f32_escrito(s.N0Dur),
        texto_citado(c["txtMaxUEHsPixel"]),
        texto_citado(c["txtEscalaImagen"]),
    ]
    escritos += [str(c["CheckR%d" % r]) for r in RECURRENCIAS]
    escritos += [str(c["CheckD%d" % d]) for d in DURACIONES]
    escribe_todo(ruta, "".join(renglon(escrito) for escrito in escritos))
    s.DirProyecto = c["Dir1"]
    s.anfitrion.avisa(
        "Los datos de configuración del proyecto se han guardado correctamente en el archivo " + ruta
    )


# --------------------------------------------------------------------------------------- components


class _FinDeLectura(Exception):
    """A reader's handler ends the routine."""

    def __init__(self, numero):
        super().__init__(numero)
        self.numero = numero


def _manejador_de_lectura(s):
    def informa(falla):
        if falla.numero in (53, 62):
            raise _FinDeLectura(falla.numero)
        s.anfitrion.avisa(texto_error_lector(falla))

    return Manejador(informa)


def LeeUEHs(s):
    """Reads the components and the vertices of the reaches; replaces all components in memory."""
    s.vacia_componentes()
    try:
        _lee_componentes(s, _manejador_de_lectura(s))
    except _FinDeLectura as fin:
        if fin.numero == 53:
            s.NroCauces = 0
        else:
            s.anfitrion.avisa(
                "Hay problemas con el archivo de datos o el archivo está dañado. Si es un prorgamador avanzado,"
                " intente ingresar directamente al archivo y corregir el problema"
            )


def _lee_campos(m, lector, objeto, orden):
    """One reading statement per field, in file order: pairs (place, type); a place is (name, slot) or a name."""
    for lugar, tipo in orden:
        with m:
            valor = lector.uno(tipo)
            if isinstance(lugar, tuple):
                getattr(objeto, lugar[0])[lugar[1]] = valor
            else:
                setattr(objeto, lugar, valor)


_CAMPOS_CAUCE_1 = (("NombreCauce", como_texto), ("numVertices", como_i16), ("IndiceParInicial", como_i16))
_CAMPOS_CAUCE_2 = (
    ("Cauce_aa", como_texto),
    ("VelMediaCauce", como_f32),
    ("LongCauce", como_f32),
    ("OrdenCauce", como_i16),
    ("Cauce_k_Musk", como_f32),
    ("Cauce_n_Musk", como_f32),
    ("optDirMusk", como_logico),
)
_CAMPOS_UEH = (
    ("NombreUEH", como_texto),
    ("Area", como_f32),
    ("Referencia", como_texto),
    ("LongitudMax", como_f32),
    ("VelMedia", como_f32),
    ("Metodo", como_texto),
    ("IconoUEHx", como_f32),
    ("IconoUEHy", como_f32),
    ("XCauce", como_f32),
    ("YCauce", como_f32),
    ("Cauce_aa", como_texto),
    ("KostiakovA", como_f32),
    ("KostiakovB", como_f32),
    ("KostiakovI", como_f32),
    ("Q0Recesion", como_f32),
    ("KRecesion", como_f32),
    ("RetensionZ", como_f32),
)
_CAMPOS_REPRESA = (
    ("NombreRepresa", como_texto),
    ("IconoRepresaX", como_f32),
    ("IconoRepresaY", como_f32),
    ("Metodo", como_texto),
    ("XCauce", como_f32),
    ("YCauce", como_f32),
    ("Cauce_aa", como_texto),
    ("optTabla", como_logico),
    *((("chkFQ", n), como_i16) for n in range(1, 9)),
    *((("FQa", n), como_f32) for n in range(1, 9)),
    *((("FQb", n), como_f32) for n in range(1, 9)),
    *((("FQc", n), como_f32) for n in range(5, 9)),
    ("Represa_k_Musk", como_f32),
    ("Represa_n_Musk", como_f32),
    *((("FQmin", n), como_f32) for n in range(1, 9)),
    *((("FQMax", n), como_f32) for n in range(1, 9)),
    ("HInicialEmb", como_f32),
)
_CAMPOS_LAGO = (
    ("NombreLAGO", como_texto),
    ("Referencia", como_texto),
    ("Metodo", como_texto),
    ("IconoLAGOx", como_f32),
    ("IconoLAGOy", como_f32),
    ("XCauce", como_f32),
    ("YCauce", como_f32),
    ("Cauce_aa", como_texto),
    ("Lago_k_Musk", como_f32),
    ("HInicialEmb", como_f32),
)


def _lee_componentes(s, m):
    lector = abre_o_nada(m, camino(s.DirProyecto, s.NombreProyecto + "_UEHs.vlm"))
    with m:
        s.NombreProyecto = lector.uno(como_texto)
    with m:
        s.NroCauces = lector.uno(como_i16)
    for i in range(1, s.NroCauces + 1):
        cauce = Cauce()
        s.ColCauces.append(cauce)
        with m:
            s.Cauces[i] = cauce
        cauce.numCauce = i
        with m:
            lector.uno(como_i16)
        _lee_campos(m, lector, cauce, _CAMPOS_CAUCE_1)
        with m:
            s.NroVertices[i] = cauce.numVertices
        _lee_campos(m, lector, cauce, _CAMPOS_CAUCE_2)
    _lee_grupo(s, m, lector, ("NroUEHs", "ColUEHs", "UEHs", "numUEH"), UEH, _CAMPOS_UEH)
    _lee_grupo(s, m, lector, ("NroRepresas", "ColRepresas", "Represas", "numRepresa"), Represa, _CAMPOS_REPRESA)
    _lee_grupo(s, m, lector, ("NroLagos", "ColLagos", "Lagos", "numLAGO"), Lago, _CAMPOS_LAGO)
    _lee_vertices(s, m)


def _lee_grupo(s, m, lector, nombres, clase, orden):
    cuenta, coleccion, ranuras, numero = nombres
    with m:
        setattr(s, cuenta, lector.uno(como_i16))
    for i in range(1, getattr(s, cuenta) + 1):
        objeto = clase()
        getattr(s, coleccion).append(objeto)
        with m:
            getattr(s, ranuras)[i] = objeto
        setattr(objeto, numero, i)
        with m:
            lector.uno(como_i16)
        _lee_campos(m, lector, objeto, orden)


def _lee_vertices(s, m):
    """The pairs are read for their faults alone: only the drawing needs their values."""
    lector = abre_o_nada(m, camino(s.DirProyecto, s.NombreProyecto + "_VerCau.vlm"))
    for i in range(1, s.NroCauces + 1):
        cuantos = 0
        with m:
            cuantos = s.NroVertices[i]
        for _ in range(1, cuantos + 1):
            with m:
                if i > s.Cauces.maximo:
                    raise Falla(9)
                lector.registro(como_f32, como_f32)


# ------------------------------------------------------------------------------------------- tables


class _TablaDeComponente:
    """Where a kind's table file is, which record its scan reads, and which arrays it fills."""

    def __init__(self, sufijo, rastreo, columnas, filas, arreglos):
        self.sufijo = sufijo
        self.rastreo = rastreo
        self.columnas = columnas
        self.filas = filas
        self.arreglos = arreglos  # pairs (array, stores whole numbers)


_HAS = _TablaDeComponente(
    "_RHAS.vlm",
    (como_texto, como_i16, como_texto),
    3,
    "RepresaFilasHAS",
    (("RepresaH", False), ("RepresaA", False), ("RepresaS", True)),
)
_HQ = _TablaDeComponente(
    "_RHQ.vlm", (como_texto, como_i16), 2, "RepresaFilasHQ", (("RepresaQH", False), ("RepresaQQ", False))
)
_HASQ = _TablaDeComponente(
    "_LHASQ.vlm",
    (como_texto, como_i16, como_texto, como_texto),
    4,
    "LagoFilas",
    (("LagoH", False), ("LagoA", False), ("LagoS", True), ("LagoQ", False)),
)


def LeeTablaHSVRepresa(s):
    s.NroRepresas = len(s.ColRepresas)
    _lee_tabla(s, _HAS, [(c.numRepresa, c.nombre) for c in s.ColRepresas])


def LeeTablaHQRepresa(s):
    s.NroRepresas = len(s.ColRepresas)
    _lee_tabla(s, _HQ, [(c.numRepresa, c.nombre) for c in s.ColRepresas])


def LeeTablaHSVQLago(s):
    s.NroLagos = len(s.ColLagos)
    _lee_tabla(s, _HASQ, [(c.numLAGO, c.nombre) for c in s.ColLagos])


def _lee_tabla(s, tabla, componentes):
    m = _manejador_de_lectura(s)
    mayor_numero = max((numero for numero, _ in componentes), default=0)
    setattr(s, tabla.filas, Vector(0, mayor_numero, i16))
    for nombre, enteros in tabla.arreglos:
        setattr(s, nombre, Matriz(0, mayor_numero, 10, i32 if enteros else f32))
    mayor_cuenta = 0
    for numero, nombre in componentes:
        try:
            mayor_cuenta = _lee_bloque(s, m, tabla, (numero, nombre), mayor_cuenta)
        except _FinDeLectura:
            getattr(s, tabla.filas)[numero] = 0
            return


def _lee_bloque(s, m, tabla, componente, mayor_cuenta):
    numero, nombre = componente
    lector = abre_o_nada(m, camino(s.DirProyecto, s.NombreProyecto + tabla.sufijo))
    marca, cuenta = "", 0
    while not (marca[:1] == "*" and marca[1:] == nombre):
        with m:
            marca, cuenta = lector.registro(*tabla.rastreo)[:2]
        if isinstance(lector, SinAbrir):
            break  # the scan stands still
    with m:
        getattr(s, tabla.filas)[numero] = cuenta
    if cuenta > mayor_cuenta:
        mayor_cuenta = cuenta
    with m:
        tope = max(10, suma16(mayor_cuenta, 1))
        for arreglo, _ in tabla.arreglos:
            getattr(s, arreglo).redimensiona(tope)
    for fila in range(1, cuenta + 1):
        valores = None
        with m:
            valores = lector.registro(*[como_f32] * tabla.columnas)
        if valores is None:
            continue
        for (arreglo, enteros), valor in zip(tabla.arreglos, valores):
            with m:
                getattr(s, arreglo)[numero, fila] = redondea_i32(valor) if enteros else valor
    return mayor_cuenta


# ------------------------------------------------------------------------------------------- storms


def LeePpReal(s, nombre):
    """A real storm into PpReal, PpTormenta, DurTormenta; returns its step [min]. Falla where it can't be read."""
    if nombre[-7:] != "_pt.vlm":
        nombre = "Velmir_pt.vlm"
    lector = Lector(camino(s.DirProyecto, nombre))
    lector.uno(como_texto)
    s.NroPpReal, paso = lector.registro(como_i16, como_i16)
    lector.registro(como_texto, como_texto)
    lector.registro(como_texto, como_texto)
    s.PpReal.redimensiona(s.NroPpReal)
    for j in range(0, s.NroPpReal + 1):
        s.PpReal[j] = 0
    for j in range(1, s.NroPpReal + 1):
        s.PpReal[j] = lector.uno(como_f32)
    s.DurTormenta = i16(s.NroPpReal * paso)
    s.PpTormenta = 0.0
    for j in range(1, s.NroPpReal + 1):
        s.PpTormenta = f32(s.PpTormenta + s.PpReal[j])
    return paso


def LeeTablaDisTemPer(s):
    """The personal distributions. A file that can't be read leaves no period in any of them, in silence."""
    try:
        lector = Lector(camino(s.DirTrabajo, "distriPp_dpt.vlm"))
        s.NroFilasTabla[1:4] = lector.registro(como_i16, como_i16, como_i16)
        mayor = max(s.NroFilasTabla[1:4])
        s.DisPerso = Matriz(0, 3, suma16(mayor, 1), f32)
        for k in (1, 2, 3):
            lector.uno(como_texto)
            lector.registro(como_i16, como_i16)
            for j in range(1, s.NroFilasTabla[k] + 1):
                s.DisPerso[k, j] = lector.uno(como_i16)
    except Falla:
        s.NroFilasTabla[1:4] = [0, 0, 0]


def LeeTablaPDRs(s):
    """The storm tables; the selected one becomes the series. A file that can't be read changes no series."""
    try:
        lector = Lector(camino(s.DirTrabajo, "TablasPDRs_pdr.vlm"))
        s.NroFilasTabla[0:4] = lector.registro(como_i16, como_i16, como_i16, como_i16)
        tablas = []
        for k in (0, 1, 2, 3):
            lector.uno(como_texto)
            tablas.append(
                [lector.registro(como_i16, como_i16, como_i16) for _ in range(1, s.NroFilasTabla[k] + 1)]
            )
    except Falla:
        s.NroFilasTabla[1:4] = [0, 0, 0]
        return
    if s.TablaPDR not in (1, 2, 3):
        s.TablaPDR = 0
    s.NroSeriePDR = s.NroFilasTabla[s.TablaPDR]
    s.SerieP = [None] + [f32(p) for p, _, _ in tablas[s.TablaPDR]]
    s.SerieD = [None] + [d for _, d, _ in tablas[s.TablaPDR]]
    s.SerieR = [None] + [r for _, _, r in tablas[s.TablaPDR]]


# ---------------------------------------------------------------------------------------------- run


def CargaProyecto(s):
    """Reloads from disk all that a run needs."""
    leoConf(s)
    LeeUEHs(s)
    if s.NroRepresas > 0:
        LeeTablaHQRepresa(s)
        LeeTablaHSVRepresa(s)
    if s.NroLagos > 0:
        LeeTablaHSVQLago(s)
