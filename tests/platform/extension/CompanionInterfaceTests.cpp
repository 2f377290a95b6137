#include "CompanionProcess.h"

#include <QFile>
#include <QXmlStreamReader>

#include <set>

namespace {

/// The members of an interface in their order, a line each: their attributes, and those of what is in them.
std::vector<std::string> membersIn(const QByteArray& description, const QString& interface)
{
    std::vector<std::string> members;
    QXmlStreamReader reader(description);
    bool inside = false;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.name() == QLatin1String("interface"))
            inside = reader.isStartElement() && reader.attributes().value(QLatin1String("name")) == interface;
        else if (inside && reader.isStartElement()) {
            std::set<std::string> attributes;
            for (const QXmlStreamAttribute& attribute : reader.attributes())
                attributes.insert(attribute.name().toString().toStdString() + "=" +
                                  attribute.value().toString().toStdString());
            std::string line = reader.name().toString().toStdString();
            for (const std::string& attribute : attributes)
                line += " " + attribute;
            if (reader.name() == QLatin1String("arg") || reader.name() == QLatin1String("annotation"))
                members.back() += "; " + line;
            else
                members.push_back(line);
        }
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    return members;
}

} // namespace

using CompanionInterface = CompanionTest;

TEST_F(CompanionInterface, IsTheOneThatIsInstalledForOtherProgramsToRead)
{
    startAndWait();
    for (const char* name : {"com.orvikstudio.FinderSyncExtension", "com.orvikstudio.FinderSyncMenu"}) {
        const QString interface = QString::fromLatin1(name);
        QFile file(QStringLiteral(ORVIK_INTERFACES "/") + interface + QStringLiteral(".xml"));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
        const auto described = membersIn(file.readAll(), interface);
        EXPECT_FALSE(described.empty()) << name;
        EXPECT_EQ(membersIn(introspect(), interface), described);
    }
}
