// The element-count block on POSIX: a name that another user's object holds cannot be made into
// the block; the message names it, and the object is left as it was. Runs before the other count
// tests: a block made by this process stays for its life.
#include "debug/cuenta_ocupada.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using Cuenta = PruebaDebug;

TEST_F(Cuenta, BlockThatCannotBeMadeIsNamedInAMessage)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "giving an object to another user needs root";
    // Without O_EXCL: the new process runs these lines again and finds the object made here.
    const int fd = shm_open(("/" + NOMBRE_CUENTA).c_str(), O_RDWR | O_CREAT, 0644);
    ASSERT_GE(fd, 0);
    ASSERT_EQ(fchown(fd, 65534, 65534), 0);
    publicar_la_cuenta_nombra_el_bloque();
    struct stat estado{};
    ASSERT_EQ(fstat(fd, &estado), 0);
    EXPECT_EQ(estado.st_size, 0) << "the foreign object was not resized";
    close(fd);
    shm_unlink(("/" + NOMBRE_CUENTA).c_str());
}

} // namespace
