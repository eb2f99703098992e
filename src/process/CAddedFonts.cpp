// SPDX-License-Identifier: MIT
// The fonts that the host brought along.
#include "process/CAddedFonts.h"

#include "text/font_file.h"
#include "text/qt_text.h"

#include <QCryptographicHash>
#include <QFontDatabase>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace tovangl {

namespace {

std::string_view viewOf(const QByteArray& file)
{
    return {file.constData(), static_cast<std::size_t>(file.size())};
}

QByteArray digestOf(std::string_view file)
{
    const auto bytes = QByteArray::fromRawData(file.data(), static_cast<int>(file.size()));
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

QString keyOf(const QString& family)
{
    return family.trimmed().toLower();
}

} // namespace

CAddedFonts& CAddedFonts::ofProcess()
{
    static CAddedFonts& fonts = *std::make_unique<CAddedFonts>().release();
    return fonts;
}

QString CAddedFonts::nameOf(const QString& qtFamily) const
{
    const auto& families = m_content.families;
    const auto found =
        std::find_if(families.begin(), families.end(),
                     [&qtFamily](const auto& entry) { return entry.second.qtName == qtFamily; });
    return found != families.end() ? found->second.name : qtFamily;
}

// The new file goes first: if Qt does not take it, the older ones need no new names.
bool CAddedFonts::add(std::string_view file, const std::vector<QString>& families)
{
    CContent addition;
    addition.digests.insert(digestOf(file));
    if (m_content.digests.count(*addition.digests.begin()) > 0)
        return true;
    std::vector<QString> names;
    for (const QString& family : families)
        names.push_back(nameFamily(family, addition.families));
    addition.files.push_back({renamedFile(file, names), families});
    addition.registrations.push_back({addition.files.front().bytes, names});
    if (!registerFile(addition.registrations.front()))
        return false;
    for (const CFile& older : m_content.files)
        registerAgain(older, addition);
    take(std::move(addition));
    return true;
}

// The last one is the last to come back.
bool CAddedFonts::areLost() const
{
    return !m_content.registrations.empty() && !hasFile(m_content.registrations.back());
}

void CAddedFonts::restore()
{
    for (CRegistration& registration : m_content.registrations)
        static_cast<void>(registerFile(registration));
}

QString CAddedFonts::qtFamily(const QString& setting) const
{
    if (m_content.families.empty())
        return QString();
    QStringList names = setting.split(QLatin1Char(','));
    names.prepend(setting); // a name can have commas in it
    for (const QString& name : std::as_const(names)) {
        const auto family = m_content.families.find(keyOf(name));
        if (family == m_content.families.end())
            continue;
        *family->second.isUsed = true;
        return family->second.qtName;
    }
    return QString();
}

// Another copy of the library in the process can have taken the name.
QString CAddedFonts::newName()
{
    QString name;
    do
        name = QLatin1String("tovangl ") + QString::number(++m_nameCount);
    while (qt::listsFamily(name));
    return name;
}

// The name that the family has already, or a new one, which goes to the renamed families.
const QString& CAddedFonts::nameFamily(const QString& family, Families& renamed)
{
    const QString key = keyOf(family);
    const auto known = m_content.families.find(key);
    if (known != m_content.families.end() && !*known->second.isUsed)
        return known->second.qtName;
    CFamily& entry = renamed[key];
    if (!entry.isUsed)
        entry = {family, newName(), std::make_shared<std::atomic<bool>>(false)};
    return entry.qtName;
}

// Qt gets the file once more if some of its families have new names. Its other families keep the
// names that they have, and are passed over by names that nobody asks for.
void CAddedFonts::registerAgain(const CFile& file, CContent& addition)
{
    const auto renamed = [&addition](const QString& family) {
        return addition.families.find(keyOf(family));
    };
    const auto isRenamed = [&](const QString& family) {
        return renamed(family) != addition.families.end();
    };
    // A new name takes longer the more fonts there are.
    if (std::none_of(file.families.begin(), file.families.end(), isRenamed))
        return;
    std::vector<QString> names;
    for (const QString& family : file.families)
        names.push_back(isRenamed(family) ? renamed(family)->second.qtName : newName());
    const std::string_view bytes = viewOf(file.bytes);
    // The parts of a broken file can overlap, and new names destroy its old ones.
    if (familiesInFile(bytes).size() != names.size())
        return;
    addition.registrations.push_back({renamedFile(bytes, names), names});
    if (!registerFile(addition.registrations.back()))
        addition.registrations.pop_back();
}

bool CAddedFonts::hasFile(const CRegistration& registration)
{
    const QStringList taken = QFontDatabase::applicationFontFamilies(registration.id);
    return std::all_of(registration.names.begin(), registration.names.end(),
                       [&taken](const QString& name) { return taken.contains(name); });
}

// Whether Qt takes the file, with all of its families by these names. The parts of a broken file
// can overlap, so that writing these names into it has made another file of it.
bool CAddedFonts::registerFile(CRegistration& registration)
{
    if (familiesInFile(viewOf(registration.bytes)) != registration.names)
        return false;
    registration.id = QFontDatabase::addApplicationFontFromData(registration.bytes);
    return registration.id >= 0 && hasFile(registration);
}

// Needs no memory, so that a file is added whole or not at all.
void CAddedFonts::take(CContent&& addition)
{
    for (auto& [key, family] : addition.families) {
        const auto known = m_content.families.find(key);
        if (known != m_content.families.end())
            known->second = std::move(family);
    }
    m_content.families.merge(addition.families);
    m_content.digests.merge(addition.digests);
    m_content.registrations.splice(m_content.registrations.end(), addition.registrations);
    m_content.files.splice(m_content.files.end(), addition.files);
}

} // namespace tovangl
