#include "WholePlatform.h"

#include "platform/linux/scenes/ImageStore.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

using LinuxDesktop::ImageStore;
using namespace Qt::StringLiterals;

class FileIcons : public WholePlatform {
protected:
    NS::Image iconFor(const QString& path) { return platform.sharedWorkspace().iconForFile(path.toStdString()); }

    QTemporaryDir folder;
};

TEST_F(FileIcons, AreThoseOfTheThemeForWhatIsThere)
{
    const QString document = folder.filePath(u"letter.pdf"_s);
    ASSERT_TRUE(QFile(document).open(QIODevice::WriteOnly));

    EXPECT_EQ(iconFor(folder.path()), ImageStore::themeImage({u"folder"_s}));
    EXPECT_EQ(iconFor(document),
              ImageStore::themeImage({u"application-pdf"_s, u"x-office-document"_s, u"text-x-generic"_s}));
    EXPECT_EQ(iconFor(folder.filePath(u"gone"_s)), ImageStore::themeImage({u"unknown"_s, u"text-x-generic"_s}));
}

TEST_F(FileIcons, OfAFolderIsThatOfAFolderWhateverItsName)
{
    const QString named = folder.filePath(u"papers.pdf"_s);
    ASSERT_TRUE(QDir().mkdir(named));
    const QString link = folder.filePath(u"link.pdf"_s);
    ASSERT_TRUE(QFile::link(named, link));

    EXPECT_EQ(iconFor(named), iconFor(folder.path()));
    EXPECT_EQ(iconFor(link), iconFor(folder.path()));
}

} // namespace
