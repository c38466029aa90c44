#pragma once

#include <cstddef>

/// Whole pages that the system keeps out of swap and core dumps where it can. The content is zero.
/// Never returns null: throws std::bad_alloc when memory is exhausted. Release with
/// freeSecretMemory() and the same size.
/// @param isKept becomes whether the system keeps them there: limits of the user can forbid it
void *allocateSecretMemory(std::size_t size, bool *isKept = nullptr);

/// Wipes and releases what allocateSecretMemory() gave; null is ignored.
void freeSecretMemory(void *memory, std::size_t size);

/// Keeps what this program has in memory out of the dumps that the system writes when it crashes,
/// as far as the system lets it. Called once, at the start.
void keepOutOfCrashDumps();

/// Keeps other programs of the same user from reading the memory of this one, where the system lets
/// it. To be called when the first secret is there, not at the start: then the desktop's services
/// can no longer look at the program, either, to see what it may ask of them.
void closeMemoryToOthers();

/// Overwrites memory with zeros in a way that the compiler does not leave out.
void wipeMemory(void *memory, std::size_t size);
