// One run of one public operation for the out-of-memory sweep: the row prepares its arrays with
// no failure pending, calls the operation through `llama` (the only stretch in which the chosen
// request to the system fails), and hands over what it made; `termina` then describes all of it
// as text, runs the full consistency check on every array and destroys everything, so that two
// runs of a row are compared by their text, their reports and the blocks they leave.
#pragma once

#include "arrays.h"

#include <cstddef>
#include <functional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

// How an array that a row hands over is described and destroyed.
enum class Clase {
    plana,                 // values of one size, described byte by byte, row by row
    cadenas,               // narrow strings
    cadenas_anchas,        // wide strings
    estructuras,           // pointers to ints that the array owns (structure arrays)
    arrays_de_estructuras, // pointers to structure arrays of ints
    arrays_de_puntos,      // pointers to 2D point arrays
    puntos_con_datos       // 2D points whose private data is an int the array owns
};

// A new int for a structure or a point's data, and its release as the library's callbacks do it.
void *nuevo_entero(int valor);
void *copia_entero(const void *entero);
void libera_entero(void **entero);

class Caso
{
public:
    // `peticion_que_falla`: the request to the system, counted from the start of `llama`, that
    // fails once (0: none).
    explicit Caso(size_t peticion_que_falla);
    Caso(const Caso &) = delete;
    Caso &operator=(const Caso &) = delete;

    // Runs the operation under test with the chosen request armed to fail, and its result.
    template <typename Llamada> auto llama(Llamada &&llamada)
    {
        const Armado armado(peticion_que_falla_);
        ++llamadas_;
        return llamada();
    }

    // Takes over an array the row made (or NULL, described as such) and returns it.
    ARRAY *guarda(ARRAY *array, Clase clase = Clase::plana);
    // Adds a result of the operation to the text.
    void anota(const std::string &texto) { texto_ += texto + "|"; }

    // What a finished run left.
    struct Resultado {
        std::string texto;
        size_t informes; // reports during the run, the full checks included
        size_t llamadas; // stretches run through `llama`
    };
    // Describes every array held, checks each in full and destroys them all.
    Resultado termina();

private:
    // The failure is pending exactly while one exists.
    struct Armado {
        explicit Armado(size_t peticion);
        ~Armado();
        Armado(const Armado &) = delete;
        Armado &operator=(const Armado &) = delete;
    };

    size_t peticion_que_falla_;
    size_t llamadas_ = 0;
    size_t informes_ = 0;
    arr_manejador_informes anterior_;
    std::vector<std::pair<ARRAY *, Clase>> arrays_;
    std::string texto_;
};

// A wide string (or NULL) as text: the bytes of its code units.
std::string texto_ancho(const WCHAR *cadena);

// One row of the table: a public export that asks the system for memory, and a run of it.
struct Operacion {
    std::string nombre;
    std::function<void(Caso &)> ejecuta;
};

// A row is shown by its name.
void PrintTo(const Operacion &operacion, std::ostream *salida);

// A run of the row with the given request failing (0: none).
Caso::Resultado ejecuta(const Operacion &operacion, size_t peticion_que_falla);
