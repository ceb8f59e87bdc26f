// Test support on POSIX: the environment of the C runtime, mmap'd pages, dlopen and fork/exec.
#include "soporte/sistema.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>

std::optional<std::string> lee_variable(const char *nombre)
{
    const char *valor = std::getenv(nombre);
    return valor != nullptr ? std::optional<std::string>(valor) : std::nullopt;
}

void pon_variable(const char *nombre, const char *valor) { setenv(nombre, valor, 1); }

void quita_variable(const char *nombre) { unsetenv(nombre); }

unsigned long id_proceso() { return static_cast<unsigned long>(getpid()); }

size_t bytes_visibles_de_bloque(size_t bytes) { return bytes; }

std::string directorio_temporal() { return "/tmp/"; }

size_t Paginas::bytes_pagina() { return static_cast<size_t>(sysconf(_SC_PAGESIZE)); }

Paginas::Paginas(size_t cuantas) : cuantas_(cuantas), inicio_(nullptr)
{
    void *zona = mmap(nullptr, cuantas * bytes_pagina(), PROT_READ | PROT_WRITE,
                      MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (zona != MAP_FAILED)
        inicio_ = static_cast<char *>(zona);
}

Paginas::~Paginas()
{
    if (inicio_ != nullptr)
        munmap(inicio_, cuantas_ * bytes_pagina());
}

void Paginas::prohibe(size_t primera, size_t cuantas)
{
    mprotect(inicio_ + primera * bytes_pagina(), cuantas * bytes_pagina(), PROT_NONE);
}

void Paginas::solo_lectura(size_t primera, size_t cuantas)
{
    mprotect(inicio_ + primera * bytes_pagina(), cuantas * bytes_pagina(), PROT_READ);
}

Biblioteca::Biblioteca(const char *ruta) : manejador_(dlopen(ruta, RTLD_NOW | RTLD_LOCAL)) {}

Biblioteca::~Biblioteca()
{
    if (manejador_ != nullptr)
        dlclose(manejador_);
}

void *Biblioteca::direccion(const char *nombre) const { return dlsym(manejador_, nombre); }

namespace {

// Opens `ruta` for writing from scratch as descriptor `destino` of this (child) process.
void redirige(const std::string &ruta, int destino)
{
    const int fd = open(ruta.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    dup2(fd, destino);
    close(fd);
}

} // namespace

Proceso::Proceso(const std::string &programa, const std::vector<std::string> &argumentos,
                 const std::string &salida, const std::string &errores)
{
    std::vector<char *> argv{const_cast<char *>(programa.c_str())};
    for (const std::string &argumento : argumentos)
        argv.push_back(const_cast<char *>(argumento.c_str()));
    argv.push_back(nullptr);
    const pid_t hijo = fork();
    if (hijo == 0) {
        redirige(salida, 1);
        redirige(errores, 2);
        execv(programa.c_str(), argv.data());
        _exit(127);
    }
    id_ = hijo;
}

Proceso::~Proceso() { espera(); }

bool Proceso::interrumpe()
{
    if (kill(static_cast<pid_t>(id_), SIGINT) == 0)
        return true;
    kill(static_cast<pid_t>(id_), SIGKILL);
    return false;
}

int Proceso::espera()
{
    if (!esperado_ && id_ > 0) {
        int estado = 0;
        waitpid(static_cast<pid_t>(id_), &estado, 0);
        estado_ = WIFEXITED(estado) ? WEXITSTATUS(estado) : -1;
        esperado_ = true;
    }
    return estado_;
}
