#!/usr/bin/env python3
"""Writes what the description of the families (tools/familias.py) determines:

- the explicit declarations of include/arrays.h, each export with its documentation, between the
  header's marks "@generado <part>" and "@fin <part>" (the rest of the header is written by hand);
- src/families/tabla_familias.h, the same families as X-macro tables for the library's C++
  fronts and the tests;
- tests/exportaciones/exportaciones.txt, every name that the header declares ARRAYS_API, which
  the built library must export exactly;
- src/arrays.map, the linker's version script, which gives each of those names the version
  ARRAYS_0.1 and keeps everything else local.

    tools/genera_interfaz.py              rewrites the files that differ
    tools/genera_interfaz.py --comprueba  changes nothing; fails, naming them, when any differs
"""

import argparse
import difflib
import re
import sys
from dataclasses import dataclass, field
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
import familias  # noqa: E402  (the description, beside this file)

RAIZ = Path(__file__).resolve().parent.parent
CABECERA = RAIZ / "include" / "arrays.h"
TABLA = RAIZ / "src" / "families" / "tabla_familias.h"
EXPORTACIONES = RAIZ / "tests" / "exportaciones" / "exportaciones.txt"
GUION = RAIZ / "src" / "arrays.map"
ANCHO = 100
VERSION = "ARRAYS_0.1"

# ---- Declarations with their documentation -------------------------------------------------


@dataclass
class Parametro:
    tipo: str  # "const ARRAY *", "arr_ulong_t", ...
    nombre: str
    doc: str


@dataclass
class Funcion:
    resultado: str
    nombre: str
    parametros: list
    que: str  # what it does: the brief line
    devuelve: str | None = None
    informes: list = field(default_factory=list)  # what it reports, beyond the conventions
    notas: list = field(default_factory=list)  # further lines of description


def pega(tipo, nombre):
    """A type and a name as C writes them: "ARRAY *" + "f" is "ARRAY *f"."""
    return tipo + nombre if tipo.endswith("*") else f"{tipo} {nombre}"


def parte(texto, sangria, ancho=ANCHO):
    """Splits a documentation text into comment lines no wider than ancho."""
    lineas, linea = [], ""
    for palabra in texto.split():
        if linea and len(sangria) + len(linea) + 1 + len(palabra) > ancho:
            lineas.append(linea)
            linea = palabra
        else:
            linea = f"{linea} {palabra}" if linea else palabra
    if linea:
        lineas.append(linea)
    return lineas


def documenta(f):
    """The Doxygen comment of a function: what it does, each parameter, its result and the reports
    it can make besides those of every call on a handle (the conventions at the top)."""
    lineas = [" * " + l for texto in [f.que] + f.notas for l in parte(texto, " * ", ANCHO - 1)]
    for orden, texto in [(f"@param {p.nombre}", p.doc) for p in f.parametros] + \
            ([("@return", f.devuelve)] if f.devuelve else []):
        cuerpo = parte(f"{orden} {texto}", " *   ")
        lineas += [" * " + cuerpo[0]] + [" *   " + l for l in cuerpo[1:]]
    if f.informes:
        lineas.append(" * @par Reports, besides the checks of the handle")
        for informe in f.informes:
            cuerpo = parte(informe, " *     ")
            lineas += [" *   - " + cuerpo[0]] + [" *     " + l for l in cuerpo[1:]]
    return cierra(lineas)


def cierra(lineas):
    """Comment lines (" * ...") as one Doxygen comment, closed on its last line when it fits."""
    lineas[0] = "/**" + lineas[0][2:]
    if len(lineas[-1]) + 3 <= ANCHO:
        lineas[-1] += " */"
    else:
        lineas.append(" */")
    return "\n".join(lineas)


def declara(f):
    """The prototype, its parameters wrapped under the opening parenthesis beyond ANCHO."""
    cabeza = "ARRAYS_API " + pega(f.resultado, f.nombre) + "("
    argumentos = [pega(p.tipo, p.nombre) for p in f.parametros] or ["void"]
    final = ") ARR_NOEXCEPT;"
    una = cabeza + ", ".join(argumentos) + final
    if len(una) <= ANCHO:
        return una
    lineas, linea = [], cabeza
    for i, a in enumerate(argumentos):
        trozo = a + ("," if i < len(argumentos) - 1 else final)
        if linea != cabeza and len(linea) + 1 + len(trozo) > ANCHO:
            lineas.append(linea.rstrip())
            linea = " " * len(cabeza) + trozo
        else:
            linea += ("" if linea == cabeza else " ") + trozo
    lineas.append(linea)
    return "\n".join(lineas)


def bloque(f):
    return documenta(f) + "\n" + declara(f)


def tipo_doc(texto, declaracion):
    return cierra([" * " + l for l in parte(texto, " * ", ANCHO - 1)]) + "\n" + declaracion


# ---- What the conventions make every handle report ------------------------------------------

POSICION = '"real_pos < array->num_elems" for a position without element'
BUCLE = '"array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO"'
CAMBIO_EN_BUCLE = f"{BUCLE} from inside a walk of this array, which is then left as it was"
ESCRITURA_EN_BUCLE = f"{BUCLE} from inside a walk of this array (the write is made)"
ORDEN_EN_BUCLE = f"{BUCLE} from inside a walk of this array"
DESTRUYE_EN_BUCLE = ('"(*array)->en_bucle == FALSO" when called from inside a walk of this array, '
                     'which it then leaves alive')

# ---- The scalar families ---------------------------------------------------------------------

ARRAY = Parametro("ARRAY *", "array", "the array")
ARRAY_LEIDO = Parametro("const ARRAY *", "array", "the array")
POS = Parametro("arr_ulong_t", "pos", "the position, from 0")
SALIDA_POS = Parametro("arr_ulong_t *", "posicion",
                       "where the position found (or ARR_ULONG_MAX) is written; may be NULL")


def predicado(e, que):
    """The predicate parameter of a search or an equality, by how the family compares."""
    if e.compara == "booleano":
        return []
    opcional = "; NULL compares exactly" if e.compara == "entero" else ""
    return [Parametro(f"arr_igualdad_{e.nombre}", "igualdad",
                      f"non-zero when {que} are equal{opcional}")]


def funciones_escalares(e):
    F, T = e.nombre, e.tipo
    valor = Parametro(T, "valor", "the value")
    buscado = Parametro(T, "valor", "the value looked for")
    busqueda = predicado(e, "an element and valor")
    fs = [
        Funcion("ARRAY *", f"arr_Crea{F}",
                [Parametro("arr_ulong_t", "tamanyo_inicial", "how many elements it starts with")],
                f"Creates an array of {e.texto} holding tamanyo_inicial zero elements.",
                "the new array, to be destroyed with arr_Destruye" + F),
        Funcion("void", f"arr_Destruye{F}",
                [Parametro("ARRAY **", "array", "the address of the handle, which is set to NULL")],
                "Destroys the array (any family's: one function under every family's name).",
                informes=['"(*array) != NULL" for a NULL handle', DESTRUYE_EN_BUCLE]),
        Funcion("arr_ulong_t", f"arr_NumElems{F}", [ARRAY_LEIDO],
                "The number of elements of the array (one function under every family's name).",
                "the count; 0 for a handle that is not a live array", []),
        Funcion("void", f"arr_Append{F}", [ARRAY, valor], "Appends valor after the last element.",
                informes=[CAMBIO_EN_BUCLE]),
    ]
    if e.append_n:
        regla = {"BOOL": '"num_veces > 1" for a count below 2',
                 "Double": '"num_veces > 1" for a count below 2'}.get(F, '"num_veces > 0" for 0')
        fs.append(Funcion("void", f"arr_AppendN{F}s",
                          [ARRAY, Parametro("arr_ulong_t", "num_veces", "how many times"), valor],
                          "Appends valor num_veces times.",
                          informes=[regla + " (then appends it that many times)", CAMBIO_EN_BUCLE]))
    fs += [
        Funcion("void", f"arr_Insertar{F}",
                [ARRAY, Parametro("arr_ulong_t", "pos", "the position it takes; the count appends"),
                 valor], "Inserts valor before the element at pos.",
                informes=["a pos beyond the count", CAMBIO_EN_BUCLE]),
        Funcion("void", f"arr_Borrar{F}", [ARRAY, POS],
                "Deletes the element at pos; the later ones move down by one.",
                informes=[POSICION, CAMBIO_EN_BUCLE]),
        Funcion(T, f"arr_Get{F}", [ARRAY, POS], "Reads the element at pos.",
                "the element; 0 when the call ends early", [POSICION]),
        Funcion("void", f"arr_Set{F}", [ARRAY, POS, valor], "Overwrites the element at pos.",
                informes=[POSICION, ESCRITURA_EN_BUCLE]),
        Funcion("void", f"arr_Inicializa{F}", [ARRAY, valor], "Sets every element to valor.",
                informes=[ESCRITURA_EN_BUCLE]),
        Funcion("arr_ulong_t", f"arr_Buscar{F}", [ARRAY, buscado] + busqueda,
                "Finds the first element equal to valor.",
                "its position, or ARR_ULONG_MAX when there is none", []),
        Funcion("arr_ulong_t", f"arr_BuscarUnico{F}", [ARRAY, buscado] + busqueda,
                "Finds the element equal to valor, which should be the only one.",
                "the position of the last match, or ARR_ULONG_MAX when there is none",
                ['"!ya_encontrado" for each match after the first']),
        Funcion("arr_bool_t", f"arr_Existe{F}", [ARRAY, buscado] + busqueda + [SALIDA_POS],
                "Tells whether an element equals valor, and where the first one is.",
                "CIERTO when one does", []),
        Funcion("arr_bool_t", f"arr_ExisteUnico{F}", [ARRAY, buscado] + busqueda + [SALIDA_POS],
                "Tells whether an element equals valor, which should be the only one.",
                "CIERTO when one does; posicion gets the last match",
                ['"!ya_encontrado" for each match after the first']),
        Funcion("void", f"arr_QSort{F}",
                [ARRAY, Parametro(f"arr_orden_{F}", "comparador",
                                  "the order (comparac_* results), or NULL for ascending values")],
                "Sorts the array in place by the quicksort that the library documents.",
                informes=[ORDEN_EN_BUCLE],
                notas=["With a comparator, its calls are exactly those of the documented "
                       "algorithm; with NULL only the final order is promised."]),
        Funcion("arr_bool_t", f"arr_SonIguales{F}",
                [Parametro("ARRAY *", "array1", "the first array"),
                 Parametro("ARRAY *", "array2", "the second array")]
                + ([] if e.compara != "real" else predicado(e, "two elements")),
                "Compares two arrays element by element.",
                "CIERTO when they have the same count and equal elements at every position",
                ['"(array1) != NULL" or "(array2) != NULL" for a NULL handle',
                 "the handle and tag checks of each array"]),
        Funcion("ARRAY *", f"arr_Copia{F}", [ARRAY_LEIDO],
                "Copies the array (one function under every family's name).",
                "a new array with the same elements; NULL when the call ends early", []),
        Funcion("void", f"arr_Concatena{F}",
                [Parametro("ARRAY *", "dest", "the array that grows"),
                 Parametro("const ARRAY *", "org", "the array whose elements are appended; it "
                           "is left as it was")],
                "Appends every element of org to dest (one function under every family's name).",
                informes=['"(dest) != NULL", "(org) != NULL" and their marks for a NULL or dead '
                          'handle', '"org->tipo_elem == dest->tipo_elem" for arrays of two types',
                          '"dest->en_bucle == FALSO" from inside a walk of dest']),
    ]
    tamanyo = Parametro("arr_ulong_t", "nuevo_tamanyo", "the new count")
    if e.aumenta:
        fs.append(Funcion("void", f"arr_AumentaTamanyo{F}", [ARRAY, tamanyo],
                          "Grows the array to nuevo_tamanyo elements; the new ones are zero "
                          "(one function under every family's name).",
                          informes=['"nuevo_tamanyo > array->num_elems" for a count not '
                                    'above the present one', CAMBIO_EN_BUCLE]))
    if e.reduce:
        fs.append(Funcion("void", f"arr_ReduceTamanyo{F}", [ARRAY, tamanyo],
                          "Shrinks the array to its first nuevo_tamanyo elements (one function "
                          "under every family's name).",
                          informes=["a count above the present one", CAMBIO_EN_BUCLE]))
    if e.sumar:
        fs.append(Funcion("void", f"arr_Sumar{F}",
                          [ARRAY, POS, Parametro(e.sumar, "delta", "what is added")],
                          "Adds delta to the element at pos, wrapping in the element's width.",
                          informes=["a sum not strictly inside the type's range, before it is "
                                    "stored", POSICION]))
    if e.sumatorio:
        modulo = "" if F == "Double" else ", modulo 2 to the element's width in bits"
        fs.append(Funcion(T, f"arr_Sumatorio{F}", [ARRAY_LEIDO], "Adds up the elements.",
                          f"their sum{modulo}; 0 for an empty array", []))
    if e.recorre:
        fs.append(Funcion("void", f"arr_nousar_Recorre{F}",
                          [ARRAY, Parametro(f"arr_accion_{F}", "accion",
                                            "called with each element's address and datos"),
                           Parametro("void *", "datos", "handed to every call of accion"),
                           Parametro("const char *", "ubicacion",
                                     "the caller's module, named in a report of a walk already "
                                     "running"),
                           Parametro("arr_long_t", "linea", "the caller's line, likewise")],
                          "Calls accion for every element in position order.",
                          informes=['"en_bucle == FALSO" naming ubicacion and linea when '
                                    "a walk of this array is already running (this one still "
                                    "runs)"],
                          notas=["The action may change the element in place; calls that would "
                                 "free the array or move, free or shorten its rows are refused "
                                 "while it runs."]))
    return fs


def familia_escalar(e):
    F, T = e.nombre, e.tipo
    partes = [
        f"/** @defgroup familia_{F} {F} arrays\n * Arrays of {e.texto} ({T}).\n * @{{ */",
        tipo_doc(f"Action of arr_nousar_Recorre{F}: the element's address and the caller's "
                 "datos; the result is ignored.",
                 f"typedef arr_bool_t (*arr_accion_{F})({pega(T + ' *', 'elemento')}, "
                 "void *datos);"),
        tipo_doc(f"Equality of two {F} values in searches and comparisons: non-zero when equal.",
                 f"typedef arr_bool_t (*arr_igualdad_{F})({T} a, {T} b);"),
        tipo_doc(f"Order of arr_QSort{F}: comparac_PRIMERO_MENOR, comparac_IGUALES or "
                 "comparac_PRIMERO_MAYOR.",
                 f"typedef int (*arr_orden_{F})({T} a, {T} b);"),
    ]
    partes += [bloque(f) for f in funciones_escalares(e)]
    partes.append("/** @} */")
    return "\n".join(partes)


def escalares():
    return "\n\n".join(familia_escalar(e) for e in familias.ESCALARES)


# ---- The shared functions under the other families' names -----------------------------------


def compartida(clase, nombre):
    familia = re.sub(r"^arr_(Destruye|NumElems|Copia|Concatena|AumentaTamanyo|ReduceTamanyo)",
                     "", nombre)
    if nombre.startswith("arulong"):
        familia = "ULong64" if nombre.startswith("arulong64") else "ULong"
    gemela = {"destruye": "arr_DestruyeDouble", "numelems": "arr_NumElemsDouble",
              "copia": "arr_CopiaDouble", "concatena": "arr_ConcatenaDouble",
              "aumenta": "arr_AumentaTamanyoDouble", "reduce": "arr_ReduceTamanyoDouble"}[clase]
    modelo = next(f for f in funciones_escalares(familias.ESCALARES[-1]) if f.nombre == gemela)
    return Funcion(modelo.resultado, nombre, modelo.parametros,
                   f"The same function as {gemela}, under the name of the {familia} arrays.",
                   modelo.devuelve, modelo.informes)


def grupo(nombre, titulo, descripcion, bloques):
    """Declarations as one Doxygen group."""
    return "\n".join([f"/** @defgroup {nombre} {titulo}\n * {descripcion}\n * @{{ */"] + bloques
                     + ["/** @} */"])


def compartidas():
    return grupo("compartidas", "Shared functions under the other families' names",
                 "Destroy, count, copy, concatenate, grow and shrink: one function each.",
                 [bloque(compartida(clase, nombre))
                  for clase, nombres in familias.COMPARTIDAS.items() for nombre in nombres])


# ---- The second names of the unsigned families ----------------------------------------------

# Each second name and its arr_ twin, by the twin's operation.
PARES = [("append", "Append"), ("inserta", "Insertar"), ("borra", "Borrar"), ("get", "Get"),
         ("set", "Set"), ("busca", "Buscar"), ("busca_unico", "BuscarUnico"),
         ("existe", "Existe"), ("existe_unico", "ExisteUnico"), ("qsort", "QSort"),
         ("iguales", "SonIguales")]


def segundos_nombres(prefijo, familia):
    e = next(e for e in familias.ESCALARES if e.nombre == familia)
    propias = {f.nombre: f for f in funciones_escalares(e)}
    fs = [
        Funcion("ARRAY *", f"{prefijo}_crea", [], f"Creates an empty {familia} array, as "
                f"arr_Crea{familia}(0) does.", f"the new array, to be destroyed with "
                f"{prefijo}_destruye"),
        Funcion("void", f"{prefijo}_append_n",
                [ARRAY, Parametro("arr_ulong_t", "num_valores", "how many times"),
                 Parametro(e.tipo, "valor", "the value")],
                "Appends valor num_valores times.",
                informes=['"num_valores > 1" for a count below 2 (then appends it that many '
                          'times)', CAMBIO_EN_BUCLE]),
    ]
    for segundo, operacion in PARES:
        gemela = propias[f"arr_{operacion}{familia}"]
        parametros = gemela.parametros
        if segundo == "iguales":
            parametros = parametros[:2]
        fs.append(Funcion(gemela.resultado, f"{prefijo}_{segundo}", parametros,
                          f"The same function as {gemela.nombre}.", gemela.devuelve,
                          gemela.informes))
    return fs


def arulong():
    return grupo("segundos_nombres", "The arulong and arulong64 names",
                 "The ULong and ULong64 families under second, lower-case names.",
                 [bloque(f) for prefijo, familia in familias.SEGUNDOS_NOMBRES
                  for f in segundos_nombres(prefijo, familia)])


# ---- The string families ------------------------------------------------------------------

CLASES = [("", "exactly", False), ("Ex", "by the caller's predicate", True),
          ("MayMin", "ignoring the difference of upper and lower case", False)]


def funciones_cadena(S, C, texto):
    cadena = Parametro(f"const {C} *", "cadena", "the string, copied; NULL stands for no string")
    original = Parametro(f"{C} **", "cadena", "the address of a string made by "
                         + ("cad_copia_cadena" if not S else "widestr_fun_copia")
                         + ", which the array takes; it is set to NULL")
    liberar = "zarpstr_destruye" if not S else "widestr_nousar_destruye"
    fs = [
        Funcion("ARRAY *", f"arr_CreaCADENA{S}",
                [Parametro("arr_ulong_t", "tamanyo_inicial", "how many NULL elements it starts "
                           "with")],
                f"Creates an array of {texto} that owns its strings.",
                f"the new array, to be destroyed with arr_DestruyeCADENA{S}"),
        Funcion("void", f"arr_AppendCADENA{S}", [ARRAY, cadena], "Appends a copy of cadena.",
                informes=[CAMBIO_EN_BUCLE]),
        Funcion("void", f"arr_AppendCADENAOriginal{S}", [ARRAY, original],
                "Appends the string *cadena itself.",
                informes=['"item" for a NULL address (nothing is appended)', CAMBIO_EN_BUCLE]),
        Funcion("void", f"arr_AppendNCADENAs{S}",
                [ARRAY, Parametro("arr_ulong_t", "num_veces", "how many copies; 0 appends "
                                  "nothing"), cadena],
                "Appends num_veces separate copies of cadena.",
                informes=[CAMBIO_EN_BUCLE]),
        Funcion("void", f"arr_InsertarCADENA{S}",
                [ARRAY, Parametro("arr_ulong_t", "pos", "the position it takes; the count "
                                  "appends"), cadena],
                "Inserts a copy of cadena before the element at pos.",
                informes=["a pos beyond the count", CAMBIO_EN_BUCLE]),
        Funcion("void", f"arr_BorrarCADENA{S}", [ARRAY, POS],
                "Frees the string at pos and deletes the element.",
                informes=[POSICION, CAMBIO_EN_BUCLE]),
        Funcion(f"const {C} *", f"arr_GetCADENA{S}", [ARRAY, POS],
                "Reads the string at pos, lent by the array.",
                "the stored string, valid until that element changes; NULL for a NULL element "
                "or when the call ends early", [POSICION]),
        Funcion(f"{C} *", f"arr_GetCopiaCADENA{S}", [ARRAY, POS],
                "Copies the string at pos for the caller.",
                f"a new string that the caller frees with {liberar}; NULL for a NULL element",
                [POSICION]),
        Funcion("void", f"arr_SetCADENA{S}",
                [ARRAY, POS, Parametro(f"const {C} *", "cadena", "the string, copied")],
                "Frees the string at pos and stores a copy of cadena.",
                informes=['"item" for a NULL cadena, which leaves the element as it was',
                          '"(ptr_cad) != NULL" for a position without element',
                          '"array->en_bucle == FALSO" from inside a sort of this array '
                          '(nothing is stored)']),
        Funcion("void", f"arr_SetCADENAOriginal{S}", [ARRAY, POS, original],
                "Frees the string at pos and stores the string *cadena itself.",
                informes=['"item" for a NULL address, which leaves the element as it was',
                          '"(ptr_cad) != NULL" for a position without element (*cadena then '
                          "stays the caller's)"]),
        Funcion("void", f"arr_QSortCADENA{S}",
                [ARRAY, Parametro(f"arr_orden_CADENA{S}", "comparador",
                                  "the order (comparac_* results), or NULL for the order of the "
                                  "code units, NULL elements first")],
                "Sorts the array in place by the quicksort that the library documents.",
                informes=[ORDEN_EN_BUCLE]),
        Funcion("arr_bool_t", f"arr_SonIgualesCADENA{S}",
                [Parametro("ARRAY *", "array1", "the first array"),
                 Parametro("ARRAY *", "array2", "the second array"),
                 Parametro(f"arr_igualdad_CADENA{S}", "igualdad",
                           "non-zero when two strings are equal")],
                "Compares two string arrays element by element with the caller's predicate.",
                "CIERTO when they have the same count and equal strings at every position",
                ["the handle and tag checks of each array"]),
        Funcion("arr_bool_t", f"arr_SonIgualesExactamenteCADENA{S}",
                [Parametro("ARRAY *", "array1", "the first array"),
                 Parametro("ARRAY *", "array2", "the second array")],
                "Compares two string arrays element by element, exactly.",
                "CIERTO when they have the same count and equal strings at every position",
                ["the handle and tag checks of each array"]),
        Funcion(f"{C} *", f"arr_cadena_de_referencias{S}",
                [ARRAY, Parametro(C, "inicio", "written first; 0 leaves it out"),
                 Parametro(C, "separador", "written between two elements; 0 leaves it out"),
                 Parametro(C, "fin", "written last; 0 leaves it out")],
                "Joins the strings of the array into one (a NULL element adds nothing).",
                f"a new string that the caller frees with {liberar}",
                ['"num_cadenas > 0" for an empty array (the result is then just inicio)']),
        Funcion("void", f"nousar_RecorreCADENA{S}",
                [ARRAY, Parametro(f"arr_accion_CADENA{S}", "accion",
                                  "called with each element's address and datos"),
                 Parametro("void *", "datos", "handed to every call of accion"),
                 Parametro("const char *", "ubicacion",
                           "the caller's module, named in a report of a walk already running"),
                 Parametro("arr_long_t", "linea", "the caller's line, likewise")],
                "Calls accion for every element in position order; the action may replace the "
                "string (freeing the old one).",
                informes=['"en_bucle == FALSO" naming ubicacion and linea when a walk of '
                          "this array is already running (this one still runs)"]),
    ]
    for clase, como, con_predicado in CLASES:
        buscada = Parametro(f"const {C} *", "cadena", "the string looked for")
        extra = [Parametro(f"arr_igualdad_CADENA{S}", "igualdad",
                           "non-zero when the element (first) matches cadena (second)")] \
            if con_predicado else []
        desde = Parametro("arr_ulong_t", "pos_inicial", "where the search starts (included)")
        unica = '"!ya_encontrado" for each match after the first'
        fs += [
            Funcion("arr_ulong_t", f"arr_Buscar{clase}CADENA{S}", [ARRAY, buscada] + extra,
                    f"Finds the first element equal to cadena, compared {como}.",
                    "its position, or ARR_ULONG_MAX when there is none", []),
            Funcion("arr_ulong_t", f"arr_BuscarSiguiente{clase}CADENA{S}",
                    [ARRAY, desde, buscada] + extra,
                    f"Finds the first element from pos_inicial on equal to cadena, compared "
                    f"{como}.", "its position, or ARR_ULONG_MAX when there is none",
                    []),
            Funcion("arr_ulong_t", f"arr_BuscarUnica{clase}CADENA{S}", [ARRAY, buscada] + extra,
                    f"Finds the element equal to cadena, compared {como}, which should be the "
                    "only one.", "the position of the last match, or ARR_ULONG_MAX",
                    [unica]),
            Funcion("arr_bool_t", f"arr_Existe{clase}CADENA{S}",
                    [ARRAY, buscada] + extra + [SALIDA_POS],
                    f"Tells whether an element equals cadena, compared {como}.",
                    "CIERTO when one does", []),
            Funcion("arr_bool_t", f"arr_ExisteUnica{clase}CADENA{S}",
                    [ARRAY, buscada] + extra + [SALIDA_POS],
                    f"Tells whether an element equals cadena, compared {como}, which should be "
                    "the only one.", "CIERTO when one does; posicion gets the last match",
                    [unica]),
        ]
    return fs


def familia_cadena(S, C, texto):
    nombre = f"CADENA{S}"
    partes = [
        f"/** @defgroup familia_{nombre} {nombre} arrays\n * Arrays of {texto} that own them.\n"
        " * @{ */",
        tipo_doc("Equality of two strings in searches and comparisons: non-zero when equal.",
                 f"typedef arr_bool_t (*arr_igualdad_{nombre})(const {C} *a, const {C} *b);"),
        tipo_doc(f"Order of arr_QSort{nombre}: comparac_PRIMERO_MENOR, comparac_IGUALES or "
                 "comparac_PRIMERO_MAYOR.",
                 f"typedef int (*arr_orden_{nombre})(const {C} *a, const {C} *b);"),
        tipo_doc(f"Action of nousar_Recorre{nombre}: the element's address and the caller's "
                 "datos; the result is ignored.",
                 f"typedef arr_bool_t (*arr_accion_{nombre})({C} **cadena, void *datos);"),
    ]
    partes += [bloque(f) for f in funciones_cadena(S, C, texto)]
    partes.append("/** @} */")
    return "\n".join(partes)


def cadenas():
    return "\n\n".join(familia_cadena(*c) for c in familias.CADENAS)


# ---- The tables of the C++ fronts and the tests ---------------------------------------------

CABEZA_TABLA = """\
// The families of the description in tools/familias.py as X-macro tables, for the library's
// typed fronts and the tests. Written by tools/genera_interfaz.py: edit the description, not this.
#pragma once

#include "arrays.h"

// An optional operation's column: ARR_SI(x) is x, ARR_NO(x) is nothing.
#define ARR_SI(...) __VA_ARGS__
#define ARR_NO(...)

// Sumar's column applied to a generator M and its arguments: M(delta type, arguments...).
#define ARR_DELTA_SHORT(M, ...) M(arr_short_t, __VA_ARGS__)
#define ARR_DELTA_LONG(M, ...) M(arr_long_t, __VA_ARGS__)
#define ARR_DELTA_LONG64(M, ...) M(arr_long64_t, __VA_ARGS__)

// The predicate parameter of searches and of array equality, by how a family compares.
#define ARR_BUSCA_CON_ARR_BOOLEANO(F)
#define ARR_BUSCA_CON_ARR_ENTERO(F) , arr_igualdad_##F igualdad
#define ARR_BUSCA_CON_ARR_REAL(F) , arr_igualdad_##F igualdad
#define ARR_IGUALES_CON_ARR_BOOLEANO(F)
#define ARR_IGUALES_CON_ARR_ENTERO(F)
#define ARR_IGUALES_CON_ARR_REAL(F) , arr_igualdad_##F igualdad

// The predicate parameter of a string search of width S ("" or _u), by how it compares.
#define ARR_PREDICADO_CADENA_EXACTA(S)
#define ARR_PREDICADO_CADENA_EX(S) , arr_igualdad_CADENA##S igualdad
#define ARR_PREDICADO_CADENA_MAYMIN(S)
"""

DELTAS = {"arr_short_t": "ARR_DELTA_SHORT", "arr_long_t": "ARR_DELTA_LONG",
          "arr_long64_t": "ARR_DELTA_LONG64"}


def macro(nombre, cuerpo):
    """A multi-line #define with its continuations aligned at column ANCHO - 1."""
    lineas = [f"#define {nombre}"] + ["    " + l for l in cuerpo]
    return "\n".join(l.ljust(ANCHO - 2) + " \\" for l in lineas[:-1]) + "\n" + lineas[-1]


def tabla():
    si = lambda b: "ARR_SI" if b else "ARR_NO"  # noqa: E731
    filas = [f"X({e.nombre}, {e.tipo}, {e.tag}, ARR_{e.compara.upper()}, {si(e.append_n)}, "
             f"{si(e.aumenta)}, {si(e.reduce)}, {DELTAS.get(e.sumar, 'ARR_NO')}, "
             f"{si(e.sumatorio)}, {si(e.recorre)})" for e in familias.ESCALARES]
    partes = [CABEZA_TABLA,
              "// X(family, value type, tag, compares, AppendN, AumentaTamanyo, ReduceTamanyo,\n"
              "//   Sumar (its delta type), Sumatorio, arr_nousar_Recorre)",
              macro("ARR_FAMILIAS_ESCALARES(X)", filas), "",
              "// The shared functions under the names of the families that are not scalar."]
    for clase, nombres in familias.COMPARTIDAS.items():
        partes.append(macro(f"ARR_NOMBRES_{clase.upper()}(X)", [f"X({n})" for n in nombres]))
    partes += ["", "// Each second name P_x of the family F with its arr_ twin: X(second name, "
               "arr_ name).",
               macro("ARR_NOMBRES_ARULONG(X, P, F)",
                     [f"X(P##_{s}, arr_{o}##F)" for s, o in PARES])]
    return "\n".join(partes) + "\n"


# ---- The header, the export list and the version script --------------------------------------

REGIONES = {"escalares": escalares, "compartidas": compartidas, "arulong": arulong,
            "cadenas": cadenas}
MARCA = re.compile(r"^(/\* @generado (\w+): .*?\*/\n).*?^(/\* @fin \2 \*/)$", re.S | re.M)


def cabecera(texto):
    """The header with each generated part written anew between its marks."""
    nuevo, n = MARCA.subn(lambda m: m.group(1) + REGIONES[m.group(2)]() + "\n" + m.group(3), texto)
    if n != len(REGIONES):
        sys.exit(f"{CABECERA}: {n} generated parts found, {len(REGIONES)} expected")
    return nuevo


def exportados(texto):
    """Every name the header declares ARRAYS_API, in order."""
    sin_comentarios = re.sub(r"/\*.*?\*/", "", texto, flags=re.S)
    sin_directivas = re.sub(r"^#.*$", "", sin_comentarios, flags=re.M)
    return re.findall(r"\bARRAYS_API\b[^;(]*?\b(\w+)\s*\(", sin_directivas)


def lista(nombres):
    cabeza = ("# Every symbol that libarrays exports, sorted: the names that include/arrays.h\n"
              "# declares, written by tools/genera_interfaz.py. The test \"exportaciones\" "
              "compares the\n# built library with this list.\n")
    return cabeza + "".join(n + "\n" for n in sorted(nombres))


def guion(nombres):
    cabeza = ("/* The version of libarrays.so's interface that each export belongs to, written by\n"
              " * tools/genera_interfaz.py from the names include/arrays.h declares: every one is "
              "in\n * ARRAYS_0.1 and anything else the objects define stays local. A later "
              "release that\n * adds names puts them in a new node that inherits this one. */\n")
    return (cabeza + f"{VERSION} {{\n  global:\n" + "".join(f"    {n};\n" for n in sorted(nombres))
            + "  local:\n    *;\n};\n")


def main():
    argumentos = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    argumentos.add_argument("--comprueba", action="store_true",
                            help="change nothing; fail when a file is not what it should be")
    comprueba = argumentos.parse_args().comprueba
    texto = cabecera(CABECERA.read_text())
    nombres = exportados(texto)
    repetidos = sorted({n for n in nombres if nombres.count(n) > 1})
    if repetidos:
        sys.exit(f"declared twice in {CABECERA.name}: {', '.join(repetidos)}")
    salidas = {CABECERA: texto, TABLA: tabla(), EXPORTACIONES: lista(nombres),
               GUION: guion(nombres)}
    distintos = []
    for ruta, contenido in salidas.items():
        actual = ruta.read_text() if ruta.exists() else ""
        if actual == contenido:
            continue
        distintos.append(ruta)
        if comprueba:
            sys.stderr.writelines(difflib.unified_diff(
                actual.splitlines(True), contenido.splitlines(True),
                str(ruta.relative_to(RAIZ)), "as generated", n=1))
        else:
            ruta.write_text(contenido)
    if comprueba and distintos:
        sys.exit("not as tools/genera_interfaz.py writes them (run it): "
                 + ", ".join(str(r.relative_to(RAIZ)) for r in distintos))


if __name__ == "__main__":
    main()
