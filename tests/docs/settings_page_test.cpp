// SPDX-License-Identifier: MIT
// The manual's page of settings tells of every setting, and has its picture.
#include "settings_page.h"
#include <tovangl/tovangl.h>

#include <QImage>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

using ::testing::HasSubstr;

class SettingsPage : public ::testing::Test
{
protected:
    // From the setting's head to the next one.
    [[nodiscard]] std::string sectionOf(const std::string& name) const
    {
        const std::size_t begin = m_page.find("{#setting_" + name + "}");
        return begin == std::string::npos
                   ? std::string()
                   : m_page.substr(begin, m_page.find("\n## ", begin) - begin);
    }
    [[nodiscard]] QImage picture(const std::string& name) const
    {
        return QImage(m_folder.filePath(QString::fromStdString("settings_" + name + ".png")));
    }

    QTemporaryDir m_folder;
    PictureFolder m_pictures{m_folder.path().toStdString()};
    std::string m_page = settingsPage(m_pictures);
};

TEST_F(SettingsPage, HasAnExampleOfEverySetting)
{
    EXPECT_TRUE(m_pictures.isComplete());
}

TEST_F(SettingsPage, TellsWhatTheTableTellsOfEverySetting)
{
    for (const Setting& setting : settings()) {
        const std::string section = sectionOf(setting.name);
        EXPECT_THAT(section, HasSubstr(setting.summary)) << setting.name;
        EXPECT_THAT(section, HasSubstr(setting.defaultValue)) << setting.name;
        EXPECT_EQ(section.find("tovangl::PieGraph,") != std::string::npos ||
                      section.find("tovangl::PieGraph |") != std::string::npos,
                  (setting.charts & Setting::Pie) != 0)
            << setting.name;
    }
}

TEST_F(SettingsPage, ShowsAPictureOfEverySetting)
{
    for (const Setting& setting : settings()) {
        const std::string name = setting.name;
        EXPECT_THAT(sectionOf(name), HasSubstr("settings_" + name + ".png"));
        EXPECT_FALSE(picture(name).isNull()) << name;
    }
}

TEST_F(SettingsPage, ShowsWhatTheSettingChanges)
{
    const QImage dark = picture("theme");
    EXPECT_EQ(dark.pixelColor(0, 0), QColor("#1b1f27"));
    EXPECT_EQ(picture("scale").width(), 2 * dark.width());
    EXPECT_NE(picture("palette"), picture("fast"));
}

} // namespace
} // namespace tovangl
