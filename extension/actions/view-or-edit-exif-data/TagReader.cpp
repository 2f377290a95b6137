#include "TagReader.h"

#include <algorithm>
#include <map>
#include <unistd.h>

namespace MenuExtension::Exif {

namespace {

Trouble troubleOf(ExifTool::End end)
{
    switch (end) {
    case ExifTool::End::Done:
        return {};
    case ExifTool::End::NotThere:
        return {.kind = Trouble::Kind::NoExifTool};
    case ExifTool::End::TooLong:
        return {.kind = Trouble::Kind::TakesTooLong};
    case ExifTool::End::TooMuch:
        return {.kind = Trouble::Kind::TooMuchData};
    case ExifTool::End::Crashed:
        return {.kind = Trouble::Kind::ExifToolCrashed};
    case ExifTool::End::Cancelled:
        return {.kind = Trouble::Kind::Cancelled};
    }
    return {};
}

/// The first complaint about a file of that name, without ExifTool's word before it and the name after it.
std::string firstError(std::string_view complaints, const std::string& name)
{
    const std::string about = " - " + name + '\n';
    for (const std::string_view word : {"Error: ", "Warning: "}) {
        for (std::size_t begin = complaints.find(word); begin != std::string_view::npos;
             begin = complaints.find(word, begin)) {
            begin += word.size();
            std::string_view line = complaints.substr(begin, complaints.find('\n', begin) + 1 - begin);
            if (!line.ends_with(about))
                continue;
            line.remove_suffix(about.size());
            for (const std::string_view kind : {"[minor] ", "[Minor] "}) {
                if (line.starts_with(kind))
                    line.remove_prefix(kind.size());
            }
            return std::string(line);
        }
    }
    return {};
}

/// Whether each of several is worth a run of its own after a run that ended so.
bool isOfOneFile(ExifTool::End end)
{
    using End = ExifTool::End;
    return end == End::TooLong || end == End::TooMuch || end == End::Crashed;
}

} // namespace

TagReader::Link::Link(std::string path, int file) : m_path(std::move(path))
{
    const std::string target = "/proc/" + std::to_string(::getpid()) + "/fd/" + std::to_string(file);
    // A name that is not there is told of by ExifTool.
    static_cast<void>(::symlink(target.c_str(), m_path.c_str()));
}

TagReader::Link::~Link()
{
    if (!m_path.empty())
        ::unlink(m_path.c_str());
}

const std::string& TagReader::folderOfLinks()
{
    if (m_folder.empty())
        m_folder = m_folders.make().value_or("");
    return m_folder;
}

std::vector<Reading> TagReader::read(std::span<const OpenedFile> photos, const std::stop_token& stop,
                                     std::span<const std::string> keys)
{
    std::vector<Source> sources;
    for (const OpenedFile& photo : photos)
        sources.push_back({photo.file.get(), photo.name});
    return read(sources, stop, keys);
}

std::vector<Reading> TagReader::read(std::span<const Source> sources, const std::stop_token& stop,
                                     std::span<const std::string> keys)
{
    if (sources.empty())
        return {};
    std::vector<std::string> arguments{"-json", "-G0:1", "-a", "-c", "%+.6f", "-q", "-q"};
    for (const std::string& key : keys)
        arguments.push_back('-' + key);
    // Whole groups beside the keys would take half as long again.
    if (keys.empty())
        arguments.emplace_back("--System:all");
    else
        arguments.insert(arguments.end(),
                         {"-File:FileType", "-File:FileTypeExtension", "-File:MIMEType", "-ExifTool:Error"});
    std::vector<Link> links;
    std::map<std::string, std::size_t> places;
    for (std::size_t index = 0; index < sources.size(); ++index) {
        const std::string extension = extensionOf(sources[index].name);
        links.emplace_back(folderOfLinks() + '/' + std::to_string(++m_links) +
                               (extension.empty() ? "" : '.' + extension),
                           sources[index].file);
        arguments.push_back(links.back().path());
        places[links.back().path()] = index;
    }
    const ExifTool::Answer answer = m_exifTool.run(arguments, stop);
    std::vector<Reading> readings(sources.size(), {.trouble = troubleOf(answer.end)});
    if (isOfOneFile(answer.end) && sources.size() > 1) {
        for (std::size_t index = 0; index < sources.size(); ++index)
            readings[index] = std::move(read(sources.subspan(index, 1), stop, keys).front());
        return readings;
    }
    if (answer.end != ExifTool::End::Done)
        return readings;
    for (Reading& reading : readings)
        reading.trouble = {.kind = Trouble::Kind::CannotBeRead};
    const bool isWhole = readTags(answer.output, [&](const std::string& source, Tags tags) {
        const auto place = places.find(source);
        if (place == places.end())
            return;
        const std::string* const error = tags.find("ExifTool:Error");
        Reading& reading = readings[place->second];
        const std::string* const kind = tags.find("File:MIMEType");
        if (error)
            reading.trouble = {.kind = Trouble::Kind::CannotBeRead, .words = *error};
        else if (kind && kind->starts_with("text/"))
            reading.trouble = {.kind = Trouble::Kind::CannotBeRead, .words = "It is a text"};
        else
            reading.trouble = {};
        reading.tags = std::move(tags);
    });
    // Where one file's tags are no text that can be read, those of the others are asked for again.
    if (!isWhole && sources.size() > 1) {
        for (std::size_t index = 0; index < sources.size(); ++index) {
            if (readings[index].tags.empty())
                readings[index] = std::move(read(sources.subspan(index, 1), stop, keys).front());
        }
    }
    for (std::size_t index = 0; index < sources.size(); ++index) {
        Trouble& trouble = readings[index].trouble;
        if (trouble.kind == Trouble::Kind::CannotBeRead && trouble.words.empty())
            trouble.words = firstError(answer.complaints, links[index].path());
    }
    return readings;
}

std::vector<Trouble> TagReader::write(std::span<const Copy> copies, const std::string& folder,
                                      const std::vector<std::string>& changes, const std::stop_token& stop)
{
    // Values are escaped.
    std::vector<std::string> arguments{"-E", "-q", "-o", folder + '/'};
    arguments.insert(arguments.end(), changes.begin(), changes.end());
    std::vector<Link> links;
    for (const Copy& copy : copies) {
        links.emplace_back(folderOfLinks() + '/' + copy.name, copy.from);
        arguments.push_back(links.back().path());
    }
    const ExifTool::Answer answer = m_exifTool.run(arguments, stop);
    std::vector<Trouble> troubles(copies.size(), troubleOf(answer.end));
    for (std::size_t index = 0; index < copies.size(); ++index) {
        const std::string made = folder + '/' + copies[index].name;
        if (isOfOneFile(answer.end) && copies.size() > 1) {
            // It may be there in part.
            ::unlink(made.c_str());
            troubles[index] = std::move(write(copies.subspan(index, 1), folder, changes, stop).front());
        } else if (answer.end == ExifTool::End::Done && ::access(made.c_str(), F_OK) != 0) {
            troubles[index] = {.kind = Trouble::Kind::CannotBeWritten,
                               .words = firstError(answer.complaints, links[index].path())};
        }
    }
    return troubles;
}

} // namespace MenuExtension::Exif
