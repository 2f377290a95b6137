#pragma once

/// Looks anew for every application of the catalogue, each under its one path. What it finds holds for the process
/// until the next call. Main thread.
void checkInstalledApplications();

/// Whether the last check found the application of that number, counted from 1. False before the first check.
[[nodiscard]] bool isApplicationInstalled(int number);
