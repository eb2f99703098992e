// SPDX-License-Identifier: MIT
/// @file
/// The fonts that the host brought along.
#ifndef TOVANGL_PROCESS_CADDEDFONTS_H
#define TOVANGL_PROCESS_CADDEDFONTS_H

#include <QByteArray>
#include <QString>

#include <atomic>
#include <list>
#include <map>
#include <memory>
#include <set>
#include <string_view>
#include <vector>

namespace tovangl {

/// Families by the names in their files. Qt gets each under a name that nobody else has, so that it
/// is neither mixed with an installed family nor meant by the machine's rules for fonts.
class CAddedFonts
{
public:
    CAddedFonts() = default;
    Q_DISABLE_COPY(CAddedFonts)

    /// The fonts of the process. They live until its end, because exit handlers can draw.
    [[nodiscard]] static CAddedFonts& ofProcess();

    /// Adds the fonts of a file, in the scope of a CFontChange. The application object must exist.
    ///
    /// @param families  those that familiesInFile() finds, at least one
    /// @return false if Qt takes it for no font file; as if memory runs out, nothing changes then
    [[nodiscard]] bool add(std::string_view file, const std::vector<QString>& families);

    /// Whether Qt has lost the files, with an application object of the host's that ended. In the
    /// scope of a CFontUse.
    [[nodiscard]] bool areLost() const;
    /// Gives Qt the files again, by the same names and in the same order, in the scope of a
    /// CFontChange. The application object must exist.
    void restore();

    /// Qt's name for the first added family that a chart's setting names, in the scope of a
    /// CFontUse.
    ///
    /// @param setting  a family, or several with commas between them
    /// @return empty if none is an added one
    [[nodiscard]] QString qtFamily(const QString& setting) const;
    /// The family's own name; any other name as it is.
    [[nodiscard]] QString nameOf(const QString& qtFamily) const;

private:
    // A file as Qt has it, and the family of each font in it.
    struct CFile
    {
        QByteArray bytes;
        std::vector<QString> families;
    };
    // What Qt got: a file whose families have these names. The bytes are shared with Qt.
    struct CRegistration
    {
        QByteArray bytes;
        std::vector<QString> names;
        int id = -1; // Qt's
    };
    struct CFamily
    {
        QString name;
        QString qtName;
        // Every thread keeps what it found by a name. So once a chart has used the family, another
        // file for it comes with another name.
        std::shared_ptr<std::atomic<bool>> isUsed;
    };
    using Families = std::map<QString, CFamily>; // by their names in lower case
    struct CContent
    {
        std::list<CFile> files;
        std::list<CRegistration> registrations;
        std::set<QByteArray> digests; // of all files
        Families families;
    };

    [[nodiscard]] QString newName();
    [[nodiscard]] const QString& nameFamily(const QString& family, Families& renamed);
    void registerAgain(const CFile& file, CContent& addition);
    [[nodiscard]] static bool hasFile(const CRegistration& registration);
    [[nodiscard]] static bool registerFile(CRegistration& registration);
    void take(CContent&& addition);

    CContent m_content;
    int m_nameCount = 0; // never goes back: a name is used for one purpose only
};

} // namespace tovangl

#endif
