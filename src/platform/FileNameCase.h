#pragma once

/// Whether names of files that differ by case alone name the same file.
bool fileNamesIgnoreCase();
