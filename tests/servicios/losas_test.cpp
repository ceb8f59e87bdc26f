// Slabs: slots are aligned, distinct and keep their bytes; a returned slot is handed out again
// before a new one; a full chunk takes part again once a slot of it is returned; chunks whose
// slots are all free go back to the system but one; and threads may share the slabs. Each test
// uses a slot size of its own, so that no other test's chunks change its counts.
#include "services/losas.h"

#include "services/envenenado.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <set>
#include <thread>
#include <vector>

namespace {

// What the slabs hold now compared with when the object was made.
class BalanceLosas {
public:
    size_t en_uso() const { return losas_bytes_en_uso() - en_uso_; }
    size_t mapeados() const { return losas_bytes_mapeados() - mapeados_; }

private:
    size_t en_uso_ = losas_bytes_en_uso();
    size_t mapeados_ = losas_bytes_mapeados();
};

std::vector<void *> reserva(size_t cuantos, size_t bytes)
{
    std::vector<void *> slots(cuantos);
    for (void *&slot : slots)
        slot = losas_reserva(bytes);
    return slots;
}

void libera(const std::vector<void *> &slots)
{
    for (void *slot : slots)
        losas_libera(slot);
}

// Slots of `bytes` (a multiple of the alignment) that one chunk holds, found by reserving until a
// second chunk is mapped; the slots are returned.
size_t slots_por_trozo(size_t bytes)
{
    const BalanceLosas balance;
    std::vector<void *> slots;
    while (balance.mapeados() <= LOSAS_BYTES_TROZO)
        slots.push_back(losas_reserva(bytes));
    libera(slots);
    return slots.size() - 1;
}

TEST(Losas, SlotsAreAlignedDistinctAndKeepTheirBytes)
{
    const BalanceLosas balance;
    const size_t bytes = 2000;
    const std::vector<void *> slots = reserva(3000, bytes);
    EXPECT_EQ(balance.en_uso(), 3000 * 2000u);
    EXPECT_EQ(balance.mapeados(), 3 * LOSAS_BYTES_TROZO); // about a thousand slots to a chunk
    for (size_t i = 0; i < slots.size(); ++i) {
        EXPECT_EQ(reinterpret_cast<uintptr_t>(slots[i]) % LOSAS_ALINEACION, 0u);
        std::memset(slots[i], static_cast<int>(i % 251), bytes);
    }
    EXPECT_EQ(std::set<void *>(slots.begin(), slots.end()).size(), slots.size());
    for (size_t i = 0; i < slots.size(); ++i) {
        const auto *slot = static_cast<const unsigned char *>(slots[i]);
        ASSERT_EQ(slot[0], i % 251) << i;
        ASSERT_EQ(slot[bytes - 1], i % 251) << i;
    }
    libera(slots);
    EXPECT_EQ(balance.en_uso(), 0u);
}

TEST(Losas, ASizeIsRoundedUpToTheAlignment)
{
    const BalanceLosas balance;
    void *slot = losas_reserva(1001);
    EXPECT_EQ(balance.en_uso(), 1008u);
    losas_libera(slot);
    EXPECT_EQ(balance.en_uso(), 0u);
}

TEST(Losas, AReturnedSlotIsHandedOutBeforeANewOne)
{
    void *primero = losas_reserva(1504);
    losas_libera(primero);
    void *segundo = losas_reserva(1504);
    EXPECT_EQ(segundo, primero);
    losas_libera(segundo);
}

TEST(Losas, AFullChunkHandsOutTheSlotReturnedToIt)
{
    const size_t bytes = 1600;
    const size_t por_trozo = slots_por_trozo(bytes); // leaves one chunk of all free slots
    const BalanceLosas balance;
    std::vector<void *> slots = reserva(por_trozo, bytes);
    ASSERT_EQ(balance.mapeados(), 0u) << "the chunk kept, now full";
    void *devuelto = slots[por_trozo / 2];
    losas_libera(devuelto);
    slots[por_trozo / 2] = losas_reserva(bytes);
    EXPECT_EQ(slots[por_trozo / 2], devuelto);
    EXPECT_EQ(balance.mapeados(), 0u);
    libera(slots);
}

TEST(Losas, ChunksWhoseSlotsAreAllFreeGoBackButOne)
{
    const size_t bytes = 1200;
    const size_t por_trozo = slots_por_trozo(bytes); // leaves one chunk of all free slots
    const BalanceLosas balance;
    const std::vector<void *> slots = reserva(3 * por_trozo, bytes);
    EXPECT_EQ(balance.mapeados(), 2 * LOSAS_BYTES_TROZO) << "the chunk kept and two new ones";
    libera(slots);
    EXPECT_EQ(balance.mapeados(), 0u) << "one of the three is kept";
    void *otro = losas_reserva(bytes);
    EXPECT_EQ(balance.mapeados(), 0u) << "the chunk kept is used again";
    losas_libera(otro);
}

#if defined(__SANITIZE_ADDRESS__)
#define CON_ASAN
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define CON_ASAN
#endif
#endif

#ifdef CON_ASAN
TEST(Losas, AFreeSlotIsPoisonedForAddressSanitizer)
{
    auto *slot = static_cast<char *>(losas_reserva(1104));
    EXPECT_FALSE(__asan_address_is_poisoned(slot + 1103));
    losas_libera(slot);
    EXPECT_TRUE(__asan_address_is_poisoned(slot));
    EXPECT_TRUE(__asan_address_is_poisoned(slot + 1103));
    EXPECT_EQ(losas_reserva(1104), slot);
    EXPECT_FALSE(__asan_address_is_poisoned(slot + 1103));
    losas_libera(slot);
}
#endif

TEST(Losas, ThreadsShareTheSlabsWithoutSharingASlot)
{
    const BalanceLosas balance;
    constexpr size_t HILOS = 4;
    constexpr size_t RONDAS = 20;
    constexpr size_t POR_RONDA = 500;
    std::vector<char> intactos(HILOS, 0); // not vector<bool>: its elements share words
    std::vector<std::thread> hilos;
    for (size_t h = 0; h < HILOS; ++h)
        hilos.emplace_back([h, &intactos] {
            bool intacto = true;
            for (size_t ronda = 0; ronda < RONDAS; ++ronda) {
                const std::vector<void *> slots = reserva(POR_RONDA, 2048);
                for (void *slot : slots)
                    std::memset(slot, static_cast<int>(h), 2048);
                for (void *slot : slots)
                    intacto = intacto && static_cast<const unsigned char *>(slot)[2047] == h;
                libera(slots);
            }
            intactos[h] = intacto;
        });
    for (std::thread &hilo : hilos)
        hilo.join();
    for (size_t h = 0; h < HILOS; ++h)
        EXPECT_TRUE(intactos[h] != 0) << "thread " << h;
    EXPECT_EQ(balance.en_uso(), 0u);
}

} // namespace
