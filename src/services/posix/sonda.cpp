// Reading memory that may be unreadable, on POSIX: the kernel copies it for us
// (process_vm_readv on our own process), so an unmapped or protected page is an error code
// instead of a fault.
#include "services/plataforma.h"

#include <sys/uio.h>
#include <unistd.h>

bool plataforma_copia_legible(const void *origen, void *destino, size_t bytes)
{
    auto *hacia = static_cast<char *>(destino);
    auto *desde = static_cast<const char *>(origen);
    while (bytes > 0) {
        iovec local{hacia, bytes};
        iovec remoto{const_cast<char *>(desde), bytes};
        const ssize_t leidos = process_vm_readv(getpid(), &local, 1, &remoto, 1, 0);
        if (leidos <= 0) // a partial copy stops at the first unreadable page
            return false;
        hacia += leidos;
        desde += leidos;
        bytes -= static_cast<size_t>(leidos);
    }
    return true;
}
