#include "Signature.h"

#include <cmath>
#include <numbers>

namespace MenuExtension::SimilarPhotos {

namespace {

constexpr std::size_t waves = Signature::waves;

/// Levels of contrast below which a picture is nearly of one colour.
constexpr float flat = 1.5F;
/// Levels of colour that are as far as pictures can be.
constexpr float colorScale = 20;

using Cosines = std::array<std::array<float, Thumb::side>, waves>;

const Cosines& cosines()
{
    static const Cosines table = [] {
        Cosines values{};
        for (std::size_t wave = 0; wave < waves; ++wave) {
            for (std::size_t at = 0; at < Thumb::side; ++at)
                values[wave][at] = std::cos(std::numbers::pi_v<float> * static_cast<float>(wave) *
                                            (static_cast<float>(at) + 0.5F) / Thumb::side);
        }
        return values;
    }();
    return table;
}

template<std::size_t Size>
float meanOf(const std::array<std::int8_t, Size>& values)
{
    float sum = 0;
    for (const std::int8_t value : values)
        sum += static_cast<float>(value);
    return sum / Size;
}

} // namespace

Signature signatureOf(const Thumb& thumb)
{
    // Along the rows, then along the columns.
    std::array<std::array<float, Thumb::side>, waves> along{};
    for (std::size_t wave = 0; wave < waves; ++wave) {
        for (std::size_t row = 0; row < Thumb::side; ++row) {
            for (std::size_t column = 0; column < Thumb::side; ++column)
                along[wave][row] +=
                    cosines()[wave][column] * static_cast<float>(thumb.brightness[row * Thumb::side + column]);
        }
    }
    Signature signature;
    float energy = 0;
    for (std::size_t down = 0; down < waves; ++down) {
        for (std::size_t across = 0; across < waves; ++across) {
            if (down + across == 0)
                continue;
            float sum = 0;
            for (std::size_t row = 0; row < Thumb::side; ++row)
                sum += cosines()[down][row] * along[across][row];
            // Short waves are weaker in pictures, and tell as much.
            const float weight = std::pow(static_cast<float>(down * down + across * across), 0.25F);
            const float value = sum * weight * thumb.step * 2 / (Thumb::side * Thumb::side);
            signature.values[down * waves + across - 1] = value;
            energy += value * value;
        }
    }
    const float scale = 1 / std::sqrt(energy + flat * flat);
    for (std::size_t at = 0; at < Signature::coefficients; ++at)
        signature.values[at] *= scale;
    const float flatness = flat * flat / (energy + flat * flat) / colorScale;
    signature.values[Signature::coefficients] = thumb.mean * flatness;
    signature.values[Signature::coefficients + 1] = meanOf(thumb.blue) * flatness;
    signature.values[Signature::coefficients + 2] = meanOf(thumb.red) * flatness;
    return signature;
}

Signature turned(const Signature& signature, Symmetry symmetry)
{
    Signature result = signature;
    for (std::size_t down = 0; down < waves; ++down) {
        for (std::size_t across = 0; across < waves; ++across) {
            if (down + across == 0)
                continue;
            const std::size_t from = symmetry.transposed ? across * waves + down : down * waves + across;
            const bool isTurnedOver =
                (symmetry.mirroredAcross && across % 2 == 1) != (symmetry.mirroredDown && down % 2 == 1);
            const float value = signature.values[from - 1];
            result.values[down * waves + across - 1] = isTurnedOver ? -value : value;
        }
    }
    return result;
}

float distance(const Signature& one, const Signature& other)
{
    float sum = 0;
    for (std::size_t at = 0; at < Signature::dimensions; ++at) {
        const float difference = one.values[at] - other.values[at];
        sum += difference * difference;
    }
    return std::sqrt(sum);
}

} // namespace MenuExtension::SimilarPhotos
