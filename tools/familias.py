"""The one description of the families that tools/genera_interfaz.py turns into the explicit
declarations of include/arrays.h, the family tables of src/families/tabla_familias.h, the list of
exports and the linker's version script.

A scalar family is a line of ESCALARES: its word in the export names, its C value type, its
element tag, how its values compare, and which optional operations it has (the gaps are
deliberate). The families whose functions are written by hand in the header (bits, strings,
pointers, points) name here only the shared functions they export under their own names.
"""

from dataclasses import dataclass


@dataclass(frozen=True)
class Escalar:
    nombre: str  # word in the export names: arr_Crea<nombre>
    tipo: str  # C value type in the prototypes
    tag: str  # element type tag
    compara: str  # "booleano" (always exactly), "entero" (optional predicate), "real" (required)
    texto: str  # what the elements are, for the documentation
    append_n: bool = False  # arr_AppendN<nombre>s
    aumenta: bool = False  # arr_AumentaTamanyo<nombre>
    reduce: bool = False  # arr_ReduceTamanyo<nombre>
    sumar: str | None = None  # arr_Sumar<nombre>: the type of its delta
    sumatorio: bool = False  # arr_Sumatorio<nombre>
    recorre: bool = False  # arr_nousar_Recorre<nombre>


ESCALARES = [
    Escalar("BOOL", "arr_bool_t", "elem_BOOL_NO_USAR", "booleano", "booleans (16-bit)",
            append_n=True, aumenta=True, reduce=True, recorre=True),
    Escalar("BYTE", "arr_byte_t", "elem_BYTE_NO_USAR", "entero", "unsigned bytes",
            aumenta=True, reduce=True),
    Escalar("UChar", "arr_uchar_t", "elem_UCHAR_NO_USAR", "entero", "unsigned characters",
            reduce=True),
    Escalar("Char", "char", "elem_CHAR_NO_USAR", "entero", "characters (ordered as signed)",
            recorre=True),
    Escalar("Short", "arr_short_t", "elem_SHORT_NO_USAR", "entero", "signed 16-bit integers"),
    Escalar("UShort", "arr_ushort_t", "elem_USHORT_NO_USAR", "entero", "unsigned 16-bit integers",
            aumenta=True, reduce=True, sumar="arr_short_t", recorre=True),
    Escalar("Long", "arr_long_t", "elem_LONG_NO_USAR", "entero", "signed 32-bit integers",
            aumenta=True, reduce=True, sumar="arr_long_t"),
    Escalar("ULong", "arr_ulong_t", "elem_ULONG_NO_USAR", "entero", "unsigned 32-bit integers",
            append_n=True, aumenta=True, reduce=True, sumar="arr_long_t", sumatorio=True,
            recorre=True),
    Escalar("Long64", "arr_long64_t", "elem_LONG64_NO_USAR", "entero", "signed 64-bit integers",
            aumenta=True, reduce=True, sumar="arr_long64_t"),
    Escalar("ULong64", "arr_ulong64_t", "elem_ULONG64_NO_USAR", "entero",
            "unsigned 64-bit integers", append_n=True, aumenta=True, reduce=True,
            sumar="arr_long64_t", sumatorio=True, recorre=True),
    Escalar("Double", "double", "elem_DOUBLE_NO_USAR", "real", "doubles", append_n=True,
            aumenta=True, reduce=True, sumatorio=True, recorre=True),
]

# The shared functions (one function each, whatever the family) under the names of the families
# that are not scalar, beside the scalar families' own names: destroy, count, copy, concatenate,
# grow and shrink.
COMPARTIDAS = {
    "destruye": ["arr_DestruyeBIT", "arr_DestruyeCADENA", "arr_DestruyeCADENA_u",
                 "arr_DestruyePunteroConTipo", "arr_DestruyePunto2D", "arr_DestruyePunto3D",
                 "arulong_destruye", "arulong64_destruye"],
    "numelems": ["arr_NumElemsBIT", "arr_NumElemsCADENA", "arr_NumElemsCADENA_u",
                 "arr_NumElemsPunto2D", "arr_NumElemsPunto3D", "arulong_numelems",
                 "arulong64_numelems"],
    "copia": ["arr_CopiaBIT", "arr_CopiaCADENA", "arr_CopiaCADENA_u", "arr_CopiaPunto2D",
              "arr_CopiaPunto3D", "arulong_copia", "arulong64_copia"],
    "concatena": ["arr_ConcatenaCADENA", "arr_ConcatenaCADENA_u", "arr_ConcatenaPunto2D",
                  "arr_ConcatenaPunto3D", "arulong_concatena", "arulong64_concatena"],
    "aumenta": ["arr_AumentaTamanyoBIT", "arr_AumentaTamanyoCADENA_u",
                "arr_AumentaTamanyoEstructurasConTipo", "arr_AumentaTamanyoPunto2D",
                "arr_AumentaTamanyoPunto3D"],
    "reduce": ["arr_ReduceTamanyoBIT", "arr_ReduceTamanyoCADENA", "arr_ReduceTamanyoCADENA_u",
               "arr_ReduceTamanyoPunto2D", "arr_ReduceTamanyoPunto3D", "arulong_reduce_tamanyo",
               "arulong64_reduce_tamanyo"],
}

# The second, lower-case names of the unsigned families: (prefix, family).
SEGUNDOS_NOMBRES = [("arulong", "ULong"), ("arulong64", "ULong64")]

# The string families: (suffix of the names, character type, what the strings are).
CADENAS = [("", "char", "narrow strings"), ("_u", "arr_wchar_t", "wide (UTF-16) strings")]
