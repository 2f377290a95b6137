#include "PersonalData.h"

#include <algorithm>
#include <array>

namespace MenuExtension::Exif::PersonalData {

namespace {

constexpr std::array all{
    Entry{Kind::Place, "GPS:*", "GPS:all"},
    Entry{Kind::Place, "XMP-exif:GPS*", "XMP-exif:GPS*"},
    Entry{Kind::Place, "IPTC:City", "IPTC:City"},
    Entry{Kind::Place, "IPTC:Sub-location", "IPTC:Sub-location"},
    Entry{Kind::Place, "IPTC:Province-State", "IPTC:Province-State"},
    Entry{Kind::Place, "IPTC:Country-Primary*", "IPTC:Country-Primary*"},
    Entry{Kind::Place, "IPTC:ContentLocation*", "IPTC:ContentLocation*"},
    Entry{Kind::Place, "XMP-photoshop:City", "XMP-photoshop:City"},
    Entry{Kind::Place, "XMP-photoshop:State", "XMP-photoshop:State"},
    Entry{Kind::Place, "XMP-photoshop:Country", "XMP-photoshop:Country"},
    Entry{Kind::Place, "XMP-iptcCore:Location", "XMP-iptcCore:Location"},
    Entry{Kind::Place, "XMP-iptcCore:CountryCode", "XMP-iptcCore:CountryCode"},
    Entry{Kind::Place, "XMP-iptcExt:Location*", "XMP-iptcExt:Location*"},
    Entry{Kind::Place, "XMP-iptcExt:RatingRegionGPS*", "XMP-iptcExt:RatingRegionGPS*"},
    Entry{Kind::Place, "XMP-drone-dji:GPS*", "XMP-drone-dji:GPS*"},
    Entry{Kind::Place, "XMP-drone-dji:Latitude", "XMP-drone-dji:Latitude"},
    Entry{Kind::Place, "XMP-drone-dji:Longitude", "XMP-drone-dji:Longitude"},
    Entry{Kind::Place, "XMP-ast:GPS*", "XMP-ast:all"},
    Entry{Kind::Place, "XMP-dwc:DCDecimalL*", "XMP-dwc:DCDecimalL*"},
    Entry{Kind::Place, "XMP-dwc:DCVerbatimL*", "XMP-dwc:DCVerbatimL*"},
    Entry{Kind::Place, "XMP-mediapro:Location", "XMP-mediapro:Location"},

    Entry{Kind::People, "IFD0:Artist", "EXIF:Artist"},
    Entry{Kind::People, "IFD0:XPAuthor", "EXIF:XPAuthor"},
    Entry{Kind::People, "ExifIFD:OwnerName", "EXIF:OwnerName"},
    Entry{Kind::People, "IFD0:HostComputer", "EXIF:HostComputer"},
    Entry{Kind::People, "IPTC:By-line*", "IPTC:By-line*"},
    Entry{Kind::People, "IPTC:Writer-Editor", "IPTC:Writer-Editor"},
    Entry{Kind::People, "IPTC:Contact", "IPTC:Contact"},
    Entry{Kind::People, "IPTC:Credit", "IPTC:Credit"},
    Entry{Kind::People, "XMP-dc:Creator", "XMP-dc:Creator"},
    Entry{Kind::People, "XMP-tiff:Artist", "XMP-tiff:Artist"},
    Entry{Kind::People, "XMP-aux:OwnerName", "XMP-aux:OwnerName"},
    Entry{Kind::People, "XMP-photoshop:AuthorsPosition", "XMP-photoshop:AuthorsPosition"},
    Entry{Kind::People, "XMP-photoshop:CaptionWriter", "XMP-photoshop:CaptionWriter"},
    Entry{Kind::People, "XMP-photoshop:Credit", "XMP-photoshop:Credit"},
    Entry{Kind::People, "XMP-iptcCore:Creator*", "XMP-iptcCore:Creator*"},
    Entry{Kind::People, "XMP-iptcExt:PersonInImage*", "XMP-iptcExt:PersonInImage*"},
    Entry{Kind::People, "XMP-mwg-rs:*", "XMP-mwg-rs:all"},
    Entry{Kind::People, "XMP-iptcExt:PersonHeard*", "XMP-iptcExt:PersonHeard*"},
    Entry{Kind::People, "XMP-iptcExt:Contributor*", "XMP-iptcExt:Contributor*"},
    Entry{Kind::People, "XMP-MP:*", "XMP-MP:all"},
    Entry{Kind::People, "XMP-dc:Contributor", "XMP-dc:Contributor"},
    Entry{Kind::People, "XMP-exifEX:OwnerName", "XMP-exifEX:OwnerName"},
    Entry{Kind::People, "XMP-xmpRights:Owner", "XMP-xmpRights:Owner"},
    Entry{Kind::People, "XMP-pdf:Author", "XMP-pdf:Author"},
    Entry{Kind::People, "XMP-xmp:Author", "XMP-xmp:Author"},
    Entry{Kind::People, "XMP-xmpDM:Artist", "XMP-xmpDM:Artist"},
    Entry{Kind::People, "XMP-acdsee:Author", "XMP-acdsee:Author"},
    Entry{Kind::People, "XMP-plus:ImageCreator*", "XMP-plus:ImageCreator*"},
    Entry{Kind::People, "XMP-getty:Personality", "XMP-getty:Personality"},
    Entry{Kind::People, "XMP-prism:Person", "XMP-prism:Person"},
    Entry{Kind::People, "XMP-mediapro:People", "XMP-mediapro:People"},
    Entry{Kind::People, "XMP-expressionmedia:People", "XMP-expressionmedia:People"},
    Entry{Kind::People, "XMP-digiKam:CaptionsAuthorNames", "XMP-digiKam:CaptionsAuthorNames"},
    // The tags of these programs are where they put who is in a photo.
    Entry{Kind::People, "XMP-digiKam:TagsList", "XMP-digiKam:TagsList"},
    Entry{Kind::People, "XMP-lr:HierarchicalSubject", "XMP-lr:HierarchicalSubject"},
    Entry{Kind::People, "PNG:Author", "PNG:Author"},

    Entry{Kind::Camera, "ExifIFD:SerialNumber", "EXIF:SerialNumber"},
    Entry{Kind::Camera, "ExifIFD:LensSerialNumber", "EXIF:LensSerialNumber"},
    Entry{Kind::Camera, "IFD0:CameraSerialNumber", "EXIF:CameraSerialNumber"},
    Entry{Kind::Camera, "ExifIFD:ImageUniqueID", "EXIF:ImageUniqueID"},
    Entry{Kind::Camera, "XMP-aux:SerialNumber", "XMP-aux:SerialNumber"},
    Entry{Kind::Camera, "XMP-aux:LensSerialNumber", "XMP-aux:LensSerialNumber"},
    Entry{Kind::Camera, "XMP-exifEX:SerialNumber", "XMP-exifEX:SerialNumber"},
    Entry{Kind::Camera, "XMP-exifEX:LensSerialNumber", "XMP-exifEX:LensSerialNumber"},
    Entry{Kind::Camera, "XMP-exif:ImageUniqueID", "XMP-exif:ImageUniqueID"},
    Entry{Kind::Camera, "XMP-iptcExt:RecDeviceSerialNumber", "XMP-iptcExt:RecDeviceSerialNumber"},
    Entry{Kind::Camera, "XMP-getty:CameraSerialNumber", "XMP-getty:CameraSerialNumber"},
    Entry{Kind::Camera, "XMP-microsoft:CameraSerialNumber", "XMP-microsoft:CameraSerialNumber"},
    Entry{Kind::Camera, "XMP-digiKam:ImageUniqueID", "XMP-digiKam:ImageUniqueID"},

    // Each maker's own, where serial numbers, names and faces are in places that only some are known of.
    Entry{Kind::MakerNotes, "MakerNotes:*", "MakerNotes:all"},
};

} // namespace

std::vector<const Entry*> entriesIn(const Tags& tags)
{
    std::vector<const Entry*> found;
    for (const Entry& entry : all) {
        if (tags.find(entry.key))
            found.push_back(&entry);
    }
    return found;
}

std::optional<Kind> kindOf(const Tag& tag)
{
    const auto found = std::ranges::find_if(all, [&](const Entry& entry) { return matches(entry.key, tag); });
    return found == all.end() ? std::nullopt : std::optional(found->kind);
}

} // namespace MenuExtension::Exif::PersonalData
