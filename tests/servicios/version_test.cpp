// The version macros agree with the project's version, and the library reports the same one.
#include "arrays.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(Version, MacrosAgreeWithTheProjectsVersion)
{
    EXPECT_EQ(std::string(ARRAYS_VERSION_STRING), ARRAYS_VERSION_PROYECTO);
    EXPECT_EQ(std::to_string(ARRAYS_VERSION_MAJOR) + "." + std::to_string(ARRAYS_VERSION_MINOR) +
                  "." + std::to_string(ARRAYS_VERSION_PATCH),
              ARRAYS_VERSION_PROYECTO);
}

TEST(Version, LibraryReportsTheHeadersVersionNumber)
{
    EXPECT_EQ(arr_version(), static_cast<unsigned>(ARRAYS_VERSION_MAJOR * 10000 +
                                                   ARRAYS_VERSION_MINOR * 100 + ARRAYS_VERSION_PATCH));
}

} // namespace
