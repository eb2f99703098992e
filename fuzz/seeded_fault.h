// SPDX-License-Identifier: MIT
/// @file
/// Faults on purpose, so that a target can show that it finds some.
#ifndef TOVANGL_FUZZ_SEEDED_FAULT_H
#define TOVANGL_FUZZ_SEEDED_FAULT_H

namespace tovangl {

/// Whether the target was started with --seed-fault; the fuzzer itself passes over such options.
[[nodiscard]] bool isFaultSeeded();

} // namespace tovangl

#endif
