# SPDX-License-Identifier: MIT
# The extension module that is made from the C header. Its objects are made by cffi, which has no
# types for them.
from typing import Any

ffi: Any
lib: Any
