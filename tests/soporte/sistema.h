// Test support: what the tests need of the operating system, behind one interface with one
// implementation per platform (soporte/posix/, soporte/windows/), so that every test runs on both.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

// The environment of the process, as the library reads it. A variable set to "" stays present
// (on Windows too, where the C runtime would remove it).
std::optional<std::string> lee_variable(const char *nombre);
void pon_variable(const char *nombre, const char *valor);
void quita_variable(const char *nombre);

// Sets (or, given NULL, removes) an environment variable for the life of the object, then puts
// back what was there.
class VariableDeEntorno {
public:
    VariableDeEntorno(const char *nombre, const char *valor);
    ~VariableDeEntorno();
    VariableDeEntorno(const VariableDeEntorno &) = delete;
    VariableDeEntorno &operator=(const VariableDeEntorno &) = delete;

private:
    const char *nombre_;
    std::optional<std::string> previo_;
};

unsigned long id_proceso();

// How many bytes a reader of a named block of `bytes` bytes finds mapped: exactly those on POSIX,
// whole pages (the rest zero) on Windows, whose mappings do not keep their byte size.
size_t bytes_visibles_de_bloque(size_t bytes);

// A directory for the tests' scratch files, ending in a separator.
std::string directorio_temporal();

// Pages of memory straight from the system, readable and writable until the test says otherwise;
// returned to the system with the object. inicio() is NULL when the system had none.
class Paginas {
public:
    explicit Paginas(size_t cuantas);
    ~Paginas();
    Paginas(const Paginas &) = delete;
    Paginas &operator=(const Paginas &) = delete;

    static size_t bytes_pagina();
    char *inicio() const { return inicio_; }
    // Pages [primera, primera + cuantas) may not be touched at all, or may only be read.
    void prohibe(size_t primera, size_t cuantas);
    void solo_lectura(size_t primera, size_t cuantas);

private:
    size_t cuantas_;
    char *inicio_;
};

// One page that may not be touched at all, for as long as the object lives.
class PaginaProhibida : public Paginas {
public:
    PaginaProhibida() : Paginas(1) { prohibe(0, 1); }
};

// A shared library loaded while the object lives, for looking up its exports by name.
class Biblioteca {
public:
    explicit Biblioteca(const char *ruta);
    ~Biblioteca();
    Biblioteca(const Biblioteca &) = delete;
    Biblioteca &operator=(const Biblioteca &) = delete;

    bool cargada() const { return manejador_ != nullptr; }
    // The address of the export `nombre`; NULL when the library has none of that name.
    void *direccion(const char *nombre) const;

private:
    void *manejador_;
};

// Another program run with `argumentos`, its standard output and error sent to files.
class Proceso {
public:
    Proceso(const std::string &programa, const std::vector<std::string> &argumentos,
            const std::string &salida, const std::string &errores);
    ~Proceso();
    Proceso(const Proceso &) = delete;
    Proceso &operator=(const Proceso &) = delete;

    // Asks the program to stop as the user's interrupt key would, and says whether the request
    // was delivered; when it was not, the program is ended at once instead, so that waiting for
    // it cannot hang.
    bool interrumpe();
    // Waits for the program to end: its exit status, or -1 when it did not exit normally.
    int espera();

private:
    long long id_ = -1; // the process id on POSIX, the process handle on Windows
    bool esperado_ = false;
    int estado_ = -1;
};
