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

/// The first complaint, without ExifTool's word before it and the name that it was told after it.
std::string firstError(std::string_view complaints, std::string_view name)
{
    for (const std::string_view word : {"Error: ", "Warning: "}) {
        const std::size_t begin = complaints.find(word);
        if (begin == std::string_view::npos)
            continue;
        std::string_view line = complaints.substr(begin + word.size());
        line = line.substr(0, line.find('\n'));
        line = line.substr(0, line.find(" - " + std::string(name)));
        for (const std::string_view kind : {"[minor] ", "[Minor] "}) {
            if (line.starts_with(kind))
                line.remove_prefix(kind.size());
        }
        return std::string(line);
    }
    return {};
}

} // namespace

TagReader::Link::Link(const std::string& folder, unsigned number, int file, const std::string& name)
    : m_path(folder + '/' + std::to_string(number))
{
    if (const std::string extension = extensionOf(name); !extension.empty())
        m_path += '.' + extension;
    const std::string target = "/proc/" + std::to_string(::getpid()) + "/fd/" + std::to_string(file);
    // A name that is not there is told of by ExifTool.
    static_cast<void>(::symlink(target.c_str(), m_path.c_str()));
}

TagReader::Link::~Link()
{
    if (!m_path.empty())
        ::unlink(m_path.c_str());
}

TagReader::Link TagReader::link(int file, const std::string& name)
{
    if (m_folder.empty())
        m_folder = m_folders.make().value_or("");
    return {m_folder, ++m_links, file, name};
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
    std::vector<std::string> arguments{"-json", "-G0:1", "-a", "-c", "%+.6f", "--System:all", "-q", "-q"};
    for (const std::string& key : keys)
        arguments.push_back('-' + key);
    if (!keys.empty())
        arguments.insert(arguments.end(), {"-File:all", "-ExifTool:all"});
    std::vector<Link> links;
    std::map<std::string, std::size_t> places;
    for (std::size_t index = 0; index < sources.size(); ++index) {
        links.push_back(link(sources[index].file, sources[index].name));
        arguments.push_back(links.back().path());
        places[links.back().path()] = index;
    }
    const ExifTool::Answer answer = m_exifTool.run(arguments, stop);
    std::vector<Reading> readings(sources.size(), {.trouble = troubleOf(answer.end)});
    if (answer.end != ExifTool::End::Done && answer.end != ExifTool::End::NotThere &&
        answer.end != ExifTool::End::Cancelled && sources.size() > 1) {
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

Trouble TagReader::write(int from, const std::string& name, const std::string& to, std::vector<std::string> arguments,
                         const std::stop_token& stop)
{
    const Link source = link(from, name);
    // Values are escaped; lists are split; what IPTC holds is UTF-8 from now on.
    arguments.insert(arguments.begin(), {"-E", "-sep", std::string(valueSeparator), "-q", "-o", to});
    arguments.push_back(source.path());
    const ExifTool::Answer answer = m_exifTool.run(arguments, stop);
    if (answer.end != ExifTool::End::Done)
        return troubleOf(answer.end);
    if (::access(to.c_str(), F_OK) == 0)
        return {};
    return {.kind = Trouble::Kind::CannotBeWritten, .words = firstError(answer.complaints, source.path())};
}

} // namespace MenuExtension::Exif
