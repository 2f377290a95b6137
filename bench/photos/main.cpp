// Measures the finder of duplicate photos.
//   orvik-bench-photos accuracy FOLDER SCENES   makes a set of variants, series and look-alikes in FOLDER, and prints
//                                               how many of each kind were found and how many wrongly
//   orvik-bench-photos speed FOLDER PICTURES    makes pictures of 12 megapixels in a folder of its own in FOLDER, one
//                                               in ten of them twice, and finds them beside the program that does so
//   orvik-bench-photos find FOLDER              finds the duplicates among the pictures in FOLDER, and prints how
//                                               many
#include "Reading.h"
#include "Scene.h"
#include "Variants.h"
#include "bench/rivals/Rivals.h"
#include "extension/actions/find-duplicate-photos/Collection.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <random>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace MenuExtension;
namespace fs = std::filesystem;

struct Picture {
    std::string path;
    /// Pictures of one shot are the same picture.
    std::uint32_t shot = 0;
    std::string kind;
};

constexpr int width = 640;
constexpr int height = 480;
constexpr std::uint32_t shotsOfScene = 16;

/// Does work for each number below `count`, as many at a time as there are processors.
template<class Work>
void forEach(std::uint32_t count, Work work)
{
    std::atomic<std::uint32_t> next = 0;
    std::vector<std::jthread> threads;
    for (unsigned thread = 0; thread < std::max(1U, std::thread::hardware_concurrency()); ++thread)
        threads.emplace_back([&] {
            for (std::uint32_t number = next++; number < count; number = next++)
                work(number);
            vips_thread_shutdown();
        });
}

std::string shoot(const Scenes::Scene& scene, const Scenes::Camera& camera, const std::string& path,
                  std::uint32_t grain)
{
    const auto pixels = Scenes::render(scene, camera, width, height, grain);
    Variants::write(Variants::imageOf(pixels, width, height).get(), path, 92);
    return path;
}

/// All pictures of one scene: the photo, what was made of it, those of its series and those that look like it.
std::vector<Picture> picturesOf(std::uint32_t number, const std::string& folder)
{
    std::mt19937 random(number + 1);
    const auto any = [&](double least, double most) {
        return std::uniform_real_distribution<double>(least, most)(random);
    };
    const std::string stem = folder + '/' + std::to_string(number) + '-';
    const std::uint32_t shot = number * shotsOfScene;
    const Scenes::Scene scene = Scenes::makeScene(number + 1, 1);
    std::vector<Picture> pictures;
    const auto pixels = Scenes::render(scene, {}, width, height, number);
    const auto photo = Variants::imageOf(pixels, width, height);
    Variants::write(photo.get(), stem + "photo.jpg", 92);
    pictures.push_back({stem + "photo.jpg", shot, "photo"});
    for (std::size_t kind = 0; kind < Variants::kinds().size(); ++kind) {
        const auto& variant = Variants::kinds()[kind];
        pictures.push_back(
            {variant.make(photo.get(), stem + "kind" + std::to_string(kind), random), shot, variant.name});
    }
    // The next of a series: a little beside, something has moved, or both, and the light is not quite the same.
    for (std::uint32_t moment = 1; moment <= 3; ++moment) {
        Scenes::Camera camera;
        const double angle = any(0, 6.28);
        const double far = moment == 2 ? 0 : any(0.01, 0.035);
        camera.x = far * std::cos(angle);
        camera.y = far * std::sin(angle);
        camera.exposure = any(0.96, 1.04);
        const auto moved = moment == 1 ? scene : Scenes::later(scene, moment);
        pictures.push_back(
            {shoot(moved, camera, stem + "series" + std::to_string(moment) + ".jpg", number * 10 + moment),
             shot + moment, "series"});
    }
    // The same place, light and colours, and everything shaped otherwise.
    for (std::uint32_t other = 1; other <= 2; ++other)
        pictures.push_back({shoot(Scenes::makeScene(number + 1, 1 + other), {},
                                  stem + "like" + std::to_string(other) + ".jpg", number * 10 + 5 + other),
                            shot + 4 + other, "look-alike"});
    return pictures;
}

double share(int part, int whole)
{
    return whole == 0 ? 1.0 : double(part) / whole;
}

/// How well pictures were put together.
class Scores {
public:
    Scores(const std::vector<Picture>& pictures, const std::vector<std::vector<std::uint32_t>>& groups)
    {
        std::vector<int> groupOf(pictures.size(), -1);
        for (std::size_t group = 0; group < groups.size(); ++group) {
            for (const std::uint32_t member : groups[group])
                groupOf[member] = static_cast<int>(group);
        }
        std::size_t photo = 0;
        for (std::size_t number = 0; number < pictures.size(); ++number) {
            const int group = groupOf[number];
            if (pictures[number].kind == "photo")
                photo = number;
            Score& score = m_scores[pictures[number].kind];
            ++score.count;
            // The photo itself is found with any of the others.
            score.found += group >= 0 && group == groupOf[photo] ? 1 : 0;
            if (group >= 0)
                addPairs(score, pictures, number, groups[static_cast<std::size_t>(group)]);
        }
    }

    void printLine(float limit) const
    {
        double least = 1;
        double leastOfCuts = 1;
        for (const auto& kind : Variants::kinds()) {
            double& smallest = kind.cutsOrAdds ? leastOfCuts : least;
            smallest = std::min(smallest, recall(kind.name));
        }
        std::printf("  limit %.2f: least recall %.3f, of crops and borders %.3f; precision %.4f\n", double(limit),
                    least, leastOfCuts, share(m_all.right, m_all.right + m_all.wrong));
    }
    void printTable() const
    {
        std::printf("%-24s %8s %8s %10s   %s\n", "kind", "pictures", "recall", "precision", "target of the recall");
        for (const auto& kind : Variants::kinds()) {
            const Score& score = m_scores.at(kind.name);
            std::printf("%-24s %8d %8.3f %10.4f   %s\n", kind.name, score.count, recall(kind.name),
                        share(score.right, score.right + score.wrong), kind.cutsOrAdds ? "0.80" : "0.97");
        }
        for (const char* kind : {"series", "look-alike"})
            std::printf("%-24s %8d, of which %d were taken for duplicates of another\n", kind,
                        m_scores.at(kind).count, m_scores.at(kind).wrongPictures);
        std::printf("%-24s %8s %8s %10.4f   (of all pairs that were put together)\n", "all", "", "",
                    share(m_all.right, m_all.right + m_all.wrong));
    }

private:
    struct Score {
        int count = 0;
        int found = 0;
        int right = 0;
        int wrong = 0;
        int wrongPictures = 0;
    };

    void addPairs(Score& score, const std::vector<Picture>& pictures, std::size_t number,
                  const std::vector<std::uint32_t>& group)
    {
        bool isWrong = false;
        for (const std::uint32_t other : group) {
            if (other == number)
                continue;
            const bool isRight = pictures[other].shot == pictures[number].shot;
            ++(isRight ? score.right : score.wrong);
            ++(isRight ? m_all.right : m_all.wrong);
            isWrong = isWrong || !isRight;
        }
        score.wrongPictures += isWrong ? 1 : 0;
    }
    [[nodiscard]] double recall(const std::string& kind) const
    {
        return share(m_scores.at(kind).found, m_scores.at(kind).count);
    }

    std::map<std::string, Score> m_scores;
    Score m_all;
};

int accuracy(const std::string& folder, std::uint32_t scenes)
{
    fs::create_directories(folder);
    std::vector<std::vector<Picture>> made(scenes);
    forEach(scenes, [&](std::uint32_t number) { made[number] = picturesOf(number, folder); });
    std::vector<Picture> pictures;
    for (auto& some : made)
        pictures.insert(pictures.end(), some.begin(), some.end());
    std::vector<std::string> paths;
    for (const Picture& picture : pictures)
        paths.push_back(picture.path);

    SimilarPhotos::Collection collection;
    Reading::addAll(paths, collection);

    std::printf("%zu pictures\n", pictures.size());
    for (const float limit : {0.10F, 0.15F, 0.20F, SimilarPhotos::usualLimit, 0.30F, 0.40F})
        Scores(pictures, collection.resemblances().groups(limit)).printLine(limit);
    Scores(pictures, collection.resemblances().groups(SimilarPhotos::usualLimit)).printTable();
    std::printf("pictures compared: %.1f for each; places in the index looked at: %.0f for each\n",
                double(collection.compared()) / double(pictures.size()),
                double(collection.index().measured()) / double(pictures.size()));
    return EXIT_SUCCESS;
}

/// Photos of 12 megapixels that take as long to read as a camera's; every tenth is there twice, smaller.
void makeLarge(const std::string& folder, std::uint32_t count)
{
    constexpr int scale = 4;
    constexpr int smallWidth = 1000;
    constexpr int smallHeight = 750;
    forEach(count, [&](std::uint32_t number) {
        const bool isCopy = number % 10 == 9;
        const std::uint32_t scene = isCopy ? number - 1 : number;
        const auto pixels = Scenes::render(Scenes::makeScene(scene + 1, 1), {}, smallWidth, smallHeight, scene);
        const auto small = Variants::imageOf(pixels, smallWidth, smallHeight);
        VipsImage* large = nullptr;
        VipsImage* grain = nullptr;
        VipsImage* grainy = nullptr;
        VipsImage* photo = nullptr;
        const int failed = vips_resize(small.get(), &large, scale, nullptr) != 0 ||
                           vips_gaussnoise(&grain, smallWidth * scale, smallHeight * scale, "sigma", 5.0, "mean", 0.0,
                                           nullptr) != 0 ||
                           vips_add(large, grain, &grainy, nullptr) != 0 ||
                           vips_cast_uchar(grainy, &photo, nullptr) != 0;
        if (failed) {
            std::fprintf(stderr, "a picture could not be made: %s\n", vips_error_buffer());
            std::exit(EXIT_FAILURE);
        }
        Variants::write(photo, folder + '/' + std::to_string(number) + ".jpg", isCopy ? 80 : 90);
        for (VipsImage* image : {photo, grainy, grain, large})
            g_object_unref(image);
    });
}

int find(const std::string& folder)
{
    std::vector<std::string> paths;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file())
            paths.push_back(entry.path());
    }
    std::ranges::sort(paths);
    const auto begin = std::chrono::steady_clock::now();
    SimilarPhotos::Collection collection;
    Reading::addAll(paths, collection);
    const auto groups = collection.resemblances().groups(SimilarPhotos::usualLimit);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
    std::printf("%zu pictures, %zu groups, %.2f s\n", paths.size(), groups.size(), taken.count());
    return EXIT_SUCCESS;
}

int speed(const std::string& place, std::uint32_t count)
{
    const Rivals::Folder folder(place);
    makeLarge(folder.path(), count);
    const std::string expected = std::to_string(count) + " pictures, " + std::to_string(count / 10) + " groups";
    const std::vector<Rivals::Program> programs{
        {"ours", {fs::read_symlink("/proc/self/exe"), "find", folder.path()}},
        {"findimagedupes", {"findimagedupes", "-R", folder.path()}},
    };
    constexpr int rounds = 3;
    std::printf("%u pictures of 12 megapixels:\n", count);
    Rivals::compare(
        programs, rounds, place, [] {},
        [&](const Rivals::Measured& result) {
            if (result.output.starts_with(expected))
                return;
            std::fprintf(stderr, "found %s", result.output.c_str());
            std::exit(EXIT_FAILURE);
        });
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> arguments(argv, argv + argc);
    if (VIPS_INIT(argv[0]) != 0)
        return EXIT_FAILURE;
    vips_concurrency_set(1);
    vips_cache_set_max(0);
    const auto number = [&] { return static_cast<std::uint32_t>(std::stoul(arguments[3])); };
    if (argc == 4 && arguments[1] == "accuracy")
        return accuracy(arguments[2], number());
    if (argc == 4 && arguments[1] == "speed")
        return speed(arguments[2], number());
    if (argc == 3 && arguments[1] == "find")
        return find(arguments[2]);
    std::fprintf(stderr, "usage: orvik-bench-photos accuracy FOLDER SCENES | speed FOLDER PICTURES | find FOLDER\n");
    return 2;
}
