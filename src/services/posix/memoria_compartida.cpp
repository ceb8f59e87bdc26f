// Named blocks of shared memory on POSIX: the object "/NAME" of shm_open, owner-only, checked
// before it is trusted (a regular object of ours, never a link), sized with ftruncate and mapped
// with mmap.
#include "services/plataforma.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>

namespace {

std::string nombre_posix(const char *nombre) { return std::string("/") + nombre; }

// The descriptor of the object, created (mode 0600) or, when it exists, opened and accepted only
// if it is a regular object of this user; -1 otherwise. O_NOFOLLOW refuses a link planted under
// the name, O_NONBLOCK a FIFO that would block the open.
int abre_propio(const std::string &nombre)
{
    const int opciones = O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    int fd = shm_open(nombre.c_str(), opciones | O_CREAT | O_EXCL, 0600);
    if (fd >= 0 || errno != EEXIST)
        return fd;
    fd = shm_open(nombre.c_str(), opciones, 0600);
    if (fd < 0)
        return -1;
    struct stat estado{};
    if (fstat(fd, &estado) != 0 || !S_ISREG(estado.st_mode) || estado.st_uid != geteuid()) {
        close(fd);
        return -1;
    }
    return fd;
}

// Maps `bytes` bytes of `fd` (nothing for 0); fills *bloque and returns true, or closes `fd` and
// returns false.
bool mapea(int fd, size_t bytes, int proteccion, BloqueCompartido *bloque)
{
    void *vista = bytes > 0 ? mmap(nullptr, bytes, proteccion, MAP_SHARED, fd, 0) : nullptr;
    if (vista == MAP_FAILED) {
        close(fd);
        return false;
    }
    *bloque = {vista, bytes, fd};
    return true;
}

} // namespace

bool plataforma_crea_bloque(const char *nombre, size_t bytes, BloqueCompartido *bloque)
{
    const int fd = abre_propio(nombre_posix(nombre));
    if (fd < 0)
        return false;
    // Truncating to 0 first zeroes an existing object's old contents, as a new mapping is zero.
    if (ftruncate(fd, 0) != 0 || ftruncate(fd, static_cast<off_t>(bytes)) != 0) {
        close(fd);
        return false;
    }
    return mapea(fd, bytes, PROT_READ | PROT_WRITE, bloque);
}

bool plataforma_abre_bloque(const char *nombre, BloqueCompartido *bloque)
{
    const int fd =
        shm_open(nombre_posix(nombre).c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0);
    if (fd < 0)
        return false;
    struct stat estado{};
    if (fstat(fd, &estado) != 0 || !S_ISREG(estado.st_mode)) {
        close(fd);
        return false;
    }
    return mapea(fd, static_cast<size_t>(estado.st_size), PROT_READ, bloque);
}

void plataforma_cierra_bloque(BloqueCompartido *bloque)
{
    if (bloque->vista != nullptr)
        munmap(bloque->vista, bloque->bytes);
    if (bloque->manejador >= 0)
        close(static_cast<int>(bloque->manejador));
    *bloque = {};
}

void plataforma_quita_nombre(const char *nombre) { shm_unlink(nombre_posix(nombre).c_str()); }
