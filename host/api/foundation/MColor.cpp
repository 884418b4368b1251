// MColor: a colour with opacity, and its colour models.
#include <maya/MColor.h>

#include <algorithm>
#include <cmath>
#include <ostream>

namespace {

struct Rgb
{
    float r, g, b;
};

/// Hue in degrees from 0 to 360, saturation and value from 0 to 1.
struct Hsv
{
    float h, s, v;
};

Rgb toRgb(const Hsv& color)
{
    const float sector = std::fmod(color.h, 360.0f) / 60.0f;
    // What a channel that stands `offset` sectors from red gets, by the distance to the hue.
    const auto channel = [&](float offset) {
        const float k = std::fmod(offset + sector + 12.0f, 6.0f);
        return color.v - color.v * color.s * std::clamp(std::min(k, 4.0f - k), 0.0f, 1.0f);
    };
    return {channel(5.0f), channel(3.0f), channel(1.0f)};
}

Hsv toHsv(const Rgb& color)
{
    const float largest = std::max({color.r, color.g, color.b});
    const float range = largest - std::min({color.r, color.g, color.b});
    float sector = 0.0f;
    if (range > 0.0f) {
        if (largest == color.r)
            sector = std::fmod((color.g - color.b) / range + 6.0f, 6.0f);
        else if (largest == color.g)
            sector = (color.b - color.r) / range + 2.0f;
        else
            sector = (color.r - color.g) / range + 4.0f;
    }
    return {sector * 60.0f, largest != 0.0f ? range / largest : 0.0f, largest};
}

/// Integer components are shares of their greatest value; a hue is a share of the full turn.
template <class Integer>
void setFromIntegers(MColor& color, MColor::MColorType model, Integer c1, Integer c2, Integer c3,
                     Integer alpha)
{
    const auto share = [](Integer c) { return static_cast<float>(c) / static_cast<Integer>(~Integer(0)); };
    const float first = share(c1) * (model == MColor::kHSV ? 360.0f : 1.0f);
    color.set(model, first, share(c2), share(c3), share(alpha));
}

} // namespace

const MColor MColor::kOpaqueBlack;

MColor::MColor(MColorType colorModel, unsigned char c1, unsigned char c2, unsigned char c3,
               unsigned char alpha)
    : MColor()
{
    setFromIntegers(*this, colorModel, c1, c2, c3, alpha);
}

MColor::MColor(MColorType colorModel, unsigned short c1, unsigned short c2, unsigned short c3,
               unsigned short alpha)
    : MColor()
{
    setFromIntegers(*this, colorModel, c1, c2, c3, alpha);
}

MColor::MColor(MColorType colorModel, float c1, float c2, float c3, float alpha) : MColor()
{
    set(colorModel, c1, c2, c3, alpha);
}

MColor::MColor(MColorType colorModel, double c1, double c2, double c3, double alpha) : MColor()
{
    set(colorModel, static_cast<float>(c1), static_cast<float>(c2), static_cast<float>(c3),
        static_cast<float>(alpha));
}

MColor::~MColor() {}

MColor& MColor::operator*=(float scalar)
{
    return *this = *this * scalar;
}

MColor& MColor::operator*=(const MColor& other)
{
    return *this = *this * other;
}

MColor MColor::operator*(float scalar) const
{
    return MColor(r * scalar, g * scalar, b * scalar, a * scalar);
}

MColor MColor::operator*(const MColor& other) const
{
    return MColor(r * other.r, g * other.g, b * other.b, a * other.a);
}

MColor& MColor::operator/=(float scalar)
{
    return *this = *this / scalar;
}

MColor MColor::operator/(float scalar) const
{
    return MColor(r / scalar, g / scalar, b / scalar, a / scalar);
}

MColor& MColor::operator+=(const MColor& other)
{
    return *this = *this + other;
}

MColor MColor::operator+(const MColor& other) const
{
    return MColor(r + other.r, g + other.g, b + other.b, a + other.a);
}

MColor MColor::operator-() const
{
    return MColor(-r, -g, -b, -a);
}

MColor MColor::operator-(const MColor& other) const
{
    return MColor(r - other.r, g - other.g, b - other.b, a - other.a);
}

bool MColor::operator==(const MColor& other) const
{
    return r == other.r && g == other.g && b == other.b && a == other.a;
}

bool MColor::operator!=(const MColor& other) const
{
    return !(*this == other);
}

bool MColor::get(MColorType colorModel, float& c1, float& c2, float& c3) const
{
    float fourth = 0.0f;
    return get(colorModel, c1, c2, c3, fourth);
}

bool MColor::get(MColorType colorModel, float& c1, float& c2, float& c3, float& alpha) const
{
    const auto give = [&](float first, float second, float third, float fourth) {
        c1 = first;
        c2 = second;
        c3 = third;
        alpha = fourth;
        return true;
    };
    switch (colorModel) {
    case kRGB:
        return give(r, g, b, a);
    case kHSV: {
        const Hsv hsv = toHsv({r, g, b});
        return give(hsv.h, hsv.s, hsv.v, a);
    }
    case kCMY:
        return give(1.0f - r, 1.0f - g, 1.0f - b, a);
    case kCMYK: {
        const float light = std::max({r, g, b});
        const float scale = light != 0.0f ? light : 1.0f;
        return give((light - r) / scale, (light - g) / scale, (light - b) / scale, 1.0f - light);
    }
    }
    return false;
}

bool MColor::set(MColorType colorModel, float c1, float c2, float c3, float alpha)
{
    switch (colorModel) {
    case kRGB:
        *this = MColor(c1, c2, c3, alpha);
        return true;
    case kHSV: {
        const Rgb rgb = toRgb({c1, c2, c3});
        *this = MColor(rgb.r, rgb.g, rgb.b, alpha);
        return true;
    }
    case kCMY:
        *this = MColor(1.0f - c1, 1.0f - c2, 1.0f - c3, alpha);
        return true;
    case kCMYK: {
        const float light = 1.0f - alpha;
        *this = MColor((1.0f - c1) * light, (1.0f - c2) * light, (1.0f - c3) * light, 1.0f);
        return true;
    }
    }
    return false;
}

MColor operator*(float scalar, const MColor& color)
{
    return color * scalar;
}

std::ostream& operator<<(std::ostream& out, const MColor& color)
{
    return out << '(' << color.r << ", " << color.g << ", " << color.b << ", " << color.a << ')';
}
