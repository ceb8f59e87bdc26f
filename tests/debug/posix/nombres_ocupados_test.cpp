// Publishing on POSIX: the block is a shared-memory object of its owner only, and a name that
// another user, a link or a directory holds is refused and left as it is.
#include "debug/salidas.h"

#include "debug/publicacion.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>

namespace {

using Publicacion = PruebaDebug;

TEST_F(Publicacion, BlockIsForItsOwnerOnly)
{
    ARRAY *array = arr_CreaLong(1);
    debugarr_ini_serializa(array, identificador(2));
    struct stat estado{};
    ASSERT_EQ(stat(("/dev/shm/" + nombre_bloque(identificador(2))).c_str(), &estado), 0);
    EXPECT_EQ(estado.st_mode & 0777, 0600u);
    EXPECT_EQ(estado.st_uid, geteuid());
    debugarr_fin_serializa(identificador(2));
    arr_DestruyeLong(&array);
}

TEST_F(Publicacion, NameOfAnotherUserIsRefusedAndLeftAsItIs)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "giving an object to another user needs root";
    const std::string nombre = nombre_bloque(identificador(9));
    const int fd = shm_open(("/" + nombre).c_str(), O_RDWR | O_CREAT | O_EXCL, 0644);
    ASSERT_GE(fd, 0);
    ASSERT_EQ(fchown(fd, 65534, 65534), 0);
    ARRAY *array = arr_CreaLong(3);
    const size_t ultimo = debugarr_ultimo_slot();
    debugarr_ini_serializa(array, identificador(9));
    EXPECT_EQ(debugarr_ultimo_slot(), ultimo);
    struct stat estado{};
    ASSERT_EQ(fstat(fd, &estado), 0);
    EXPECT_EQ(estado.st_size, 0) << "the foreign object was not resized";
    EXPECT_EQ(estado.st_uid, 65534u);
    close(fd);
    shm_unlink(("/" + nombre).c_str());
    arr_DestruyeLong(&array);
}

TEST_F(Publicacion, LinkPlantedUnderTheNameIsRefusedAndItsTargetUntouched)
{
    char objetivo[] = "/tmp/arrays_objetivo_XXXXXX";
    const int fd = mkstemp(objetivo);
    ASSERT_GE(fd, 0);
    ASSERT_EQ(write(fd, "intacto", 7), 7);
    const std::string enlace = "/dev/shm/" + nombre_bloque(identificador(10));
    ASSERT_EQ(symlink(objetivo, enlace.c_str()), 0);
    ARRAY *array = arr_CreaLong(100);
    debugarr_ini_serializa(array, identificador(10));
    struct stat estado{};
    ASSERT_EQ(fstat(fd, &estado), 0);
    EXPECT_EQ(estado.st_size, 7);
    EXPECT_EQ(debugarr_fin_serializa(identificador(10)), 0) << "no slot was taken";
    close(fd);
    unlink(enlace.c_str());
    unlink(objetivo);
    arr_DestruyeLong(&array);
}

TEST_F(Publicacion, DirectoryUnderTheNameIsRefused)
{
    const std::string directorio = "/dev/shm/" + nombre_bloque(identificador(11));
    ASSERT_EQ(mkdir(directorio.c_str(), 0700), 0);
    ARRAY *array = arr_CreaLong(1);
    debugarr_ini_serializa(array, identificador(11));
    EXPECT_EQ(debugarr_fin_serializa(identificador(11)), 0) << "no slot was taken";
    rmdir(directorio.c_str());
    arr_DestruyeLong(&array);
}

} // namespace
