#include "extension/protocol/ActionRequest.h"

#include <algorithm>
#include <climits>

namespace MenuExtension {

namespace {

constexpr const char* backgroundOption = "--background";
constexpr const char* targetOption = "--target";
constexpr const char* callerOption = "--caller";

} // namespace

std::optional<std::string> plainPath(std::string_view path)
{
    if (!path.starts_with('/') || path.size() >= PATH_MAX || path.find('\0') != std::string_view::npos)
        return std::nullopt;
    std::string plain;
    for (std::size_t begin = 0; begin < path.size();) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        const std::string_view name = path.substr(begin, end - begin);
        if (name == "." || name == "..")
            return std::nullopt;
        // Between slashes in a row there is nothing, and a scope would take that for a folder.
        if (!name.empty())
            plain.append(1, '/').append(name);
        begin = end + 1;
    }
    return plain.empty() ? "/" : plain;
}

bool isWhole(const ActionRequest& request)
{
    return !request.paths.empty() && (!request.background || request.paths.size() == 1);
}

std::vector<std::string> argumentsOf(const ActionRequest& request)
{
    std::vector<std::string> arguments;
    if (request.background)
        arguments.emplace_back(backgroundOption);
    if (!request.target.empty())
        arguments.insert(arguments.end(), {targetOption, request.target});
    if (!request.caller.empty())
        arguments.insert(arguments.end(), {callerOption, request.caller});
    return arguments;
}

std::string inputOf(const ActionRequest& request)
{
    std::string input;
    for (const std::string& path : request.paths)
        input.append(path).push_back('\0');
    return input;
}

std::optional<ActionRequest> requestFrom(const std::vector<std::string>& arguments, std::string_view input)
{
    ActionRequest request;
    for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
        if (*argument == backgroundOption) {
            request.background = true;
            continue;
        }
        const bool isTarget = *argument == targetOption;
        if ((!isTarget && *argument != callerOption) || ++argument == arguments.end())
            return std::nullopt;
        if (!isTarget) {
            request.caller = *argument;
        } else if (auto target = plainPath(*argument)) {
            request.target = *std::move(target);
        } else {
            return std::nullopt;
        }
    }
    while (!input.empty()) {
        const std::size_t end = input.find('\0');
        // What has no end may be the beginning of another path.
        auto path = end == std::string_view::npos ? std::nullopt : plainPath(input.substr(0, end));
        if (!path)
            return std::nullopt;
        request.paths.push_back(*std::move(path));
        input.remove_prefix(end + 1);
    }
    return isWhole(request) ? std::optional(std::move(request)) : std::nullopt;
}

} // namespace MenuExtension
