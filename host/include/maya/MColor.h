// MColor: a colour with opacity.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>

/// A colour: red, green, blue and opacity (alpha), usually 0 to 1 but not limited to it.
class OPENMAYA_EXPORT MColor
{
public:
    enum MColorType
    {
        kRGB = 0,
        kHSV = 1,
        kCMY = 2,
        kCMYK = 3,
    };

    /// Opaque black.
    MColor() : r(0.0f), g(0.0f), b(0.0f), a(1.0f) {}
    MColor(const MColor& src) : r(src.r), g(src.g), b(src.b), a(src.a) {}

    MColor(float rr, float gg, float bb = 0.0, float aa = 1.0) : r(rr), g(gg), b(bb), a(aa) {}
    MColor(const float d[3]) : r(d[0]), g(d[1]), b(d[2]), a(1.0f) {}

    /// Black with this opacity.
    MColor(float alpha) : r(0.0f), g(0.0f), b(0.0f), a(alpha) {}

    /// From components of a colour model. Integers are divided by their greatest value; hue is in degrees, 0
    /// to 360, for floating-point components. In the CMYK model `alpha` is black.
    MColor(MColorType colorModel, unsigned char c1, unsigned char c2, unsigned char c3,
           unsigned char alpha = 255U);
    MColor(MColorType colorModel, unsigned short c1, unsigned short c2, unsigned short c3,
           unsigned short alpha = 65535U);
    MColor(MColorType colorModel, float c1, float c2, float c3, float alpha = 1.0);
    MColor(MColorType colorModel, double c1, double c2, double c3, double alpha = 1.0);
    ~MColor();

    MColor& operator=(const MColor& src)
    {
        r = src.r;
        g = src.g;
        b = src.b;
        a = src.a;
        return *this;
    }

    /// Component 0 to 3 (r, g, b, a). The index is not checked; a larger one gives alpha.
    float operator()(unsigned int i) const { return i == 0 ? r : i == 1 ? g : i == 2 ? b : a; }
    float& operator()(unsigned int i) { return i == 0 ? r : i == 1 ? g : i == 2 ? b : a; }
    float operator[](unsigned int i) const { return (*this)(i); }
    float& operator[](unsigned int i) { return (*this)(i); }

    /// Each component times the number, or component by component; so for the others.
    MColor& operator*=(float scalar);
    MColor& operator*=(const MColor& other);
    MColor operator*(float scalar) const;
    MColor operator*(const MColor& other) const;
    MColor& operator/=(float scalar);
    MColor operator/(float scalar) const;
    MColor& operator+=(const MColor& other);
    MColor operator+(const MColor& other) const;
    MColor operator-() const;
    MColor operator-(const MColor& other) const;

    /// Exact comparison of all components.
    bool operator==(const MColor& other) const;
    bool operator!=(const MColor& other) const;

    /// Copies red, green and blue out.
    bool get(float d[3]) const
    {
        d[0] = r;
        d[1] = g;
        d[2] = b;
        return true;
    }

    /// The components in a colour model; false when the model is unknown. For CMYK the fourth is black.
    bool get(MColorType colorModel, float&, float&, float&) const;
    bool get(MColorType colorModel, float&, float&, float&, float& alpha) const;

    /// Takes over components of a colour model; false when the model is unknown.
    bool set(MColorType colorModel, float, float, float, float alpha = 1.0);

    static const MColor kOpaqueBlack; ///< (0, 0, 0, 1)

    float r;
    float g;
    float b;
    float a;
};

/// Each component times the number.
OPENMAYA_EXPORT MColor operator*(float scalar, const MColor& color);

/// Writes "(r, g, b, a)".
OPENMAYA_EXPORT std::ostream& operator<<(std::ostream& out, const MColor& color);
