#include "fuzz/Allocations.h"

#include <algorithm>
#include <cstdlib>
#include <new>

static thread_local std::size_t largest = 0;

void ForgetAllocations()
{
    largest = 0;
}

std::size_t LargestAllocation()
{
    return largest;
}

/// Null where there is not so much memory.
static void* TryToAllocate(std::size_t bytes)
{
    largest = std::max(largest, bytes);
    return std::malloc(std::max<std::size_t>(bytes, 1));
}

static void* Allocate(std::size_t bytes)
{
    void* const memory = TryToAllocate(bytes);
    if (memory == nullptr)
    {
        throw std::bad_alloc();
    }
    return memory;
}

// In place of the library's own in the whole program.

void* operator new(std::size_t bytes)
{
    return Allocate(bytes);
}

void* operator new[](std::size_t bytes)
{
    return Allocate(bytes);
}

void* operator new(std::size_t bytes, const std::nothrow_t&) noexcept
{
    return TryToAllocate(bytes);
}

void* operator new[](std::size_t bytes, const std::nothrow_t&) noexcept
{
    return TryToAllocate(bytes);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}
