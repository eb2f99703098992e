// SPDX-License-Identifier: MIT
/// @file
/// The numbered objects of a PDF file.
#ifndef TOVANGL_PDF_CPDFOBJECTS_H
#define TOVANGL_PDF_CPDFOBJECTS_H

#include "output/CPictureFile.h"

#include <string>
#include <vector>

namespace tovangl {

/// Writes objects one behind the other, and then the table of where they are.
class CPdfObjects
{
public:
    CPdfObjects();

    /// A number for an object that is written later.
    [[nodiscard]] int reserve();
    /// Writes the object of a reserved number.
    void write(int object, const std::string& body);
    /// Writes an object and returns its number.
    int add(const std::string& body);
    /// Compresses the bytes of an object and returns its number.
    ///
    /// @param entries  of its dictionary, apart from those that tell how the bytes are packed
    int addStream(const std::string& entries, const std::string& bytes);

    /// The finished file. All reserved numbers must have been written.
    [[nodiscard]] CPictureFile finish(int catalog, int info);

private:
    std::string m_bytes;
    std::vector<std::size_t> m_offsets; // of object 1 and the following
};

} // namespace tovangl

#endif
