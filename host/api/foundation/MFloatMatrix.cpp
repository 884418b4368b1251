// MFloatMatrix: 4 x 4 floats for row vectors.
#include <maya/MFloatMatrix.h>

#include "support/matrix4.h"

#include <ostream>

using namespace tvxhost::api;

MFloatMatrix::MFloatMatrix()
{
    setToIdentity();
}

MFloatMatrix::MFloatMatrix(const MFloatMatrix& src)
{
    copyElements(matrix, src.matrix);
}

MFloatMatrix::MFloatMatrix(const double m[4][4])
{
    std::transform(&m[0][0], &m[0][0] + 16, &matrix[0][0],
                   [](double element) { return static_cast<float>(element); });
}

MFloatMatrix::MFloatMatrix(const float m[4][4])
{
    std::copy_n(&m[0][0], 16, &matrix[0][0]);
}

MFloatMatrix::~MFloatMatrix() {}

MFloatMatrix& MFloatMatrix::operator=(const MFloatMatrix& src)
{
    copyElements(matrix, src.matrix);
    return *this;
}

MStatus MFloatMatrix::get(double dest[4][4]) const
{
    std::copy_n(&matrix[0][0], 16, &dest[0][0]);
    return MS::kSuccess;
}

MStatus MFloatMatrix::get(float dest[4][4]) const
{
    std::copy_n(&matrix[0][0], 16, &dest[0][0]);
    return MS::kSuccess;
}

MFloatMatrix MFloatMatrix::transpose() const
{
    return fromImath<MFloatMatrix>(imathOf(*this).transposed());
}

MFloatMatrix& MFloatMatrix::setToIdentity()
{
    return *this = fromImath<MFloatMatrix>(Imath::M44f());
}

MFloatMatrix& MFloatMatrix::setToProduct(const MFloatMatrix& left, const MFloatMatrix& right)
{
    return *this = fromImath<MFloatMatrix>(imathOf(left) * imathOf(right));
}

MFloatMatrix& MFloatMatrix::operator+=(const MFloatMatrix& right)
{
    return *this = *this + right;
}

MFloatMatrix MFloatMatrix::operator+(const MFloatMatrix& right) const
{
    return fromImath<MFloatMatrix>(imathOf(*this) + imathOf(right));
}

MFloatMatrix& MFloatMatrix::operator-=(const MFloatMatrix& right)
{
    return *this = *this - right;
}

MFloatMatrix MFloatMatrix::operator-(const MFloatMatrix& right) const
{
    return fromImath<MFloatMatrix>(imathOf(*this) - imathOf(right));
}

MFloatMatrix& MFloatMatrix::operator*=(const MFloatMatrix& right)
{
    return setToProduct(*this, right);
}

MFloatMatrix MFloatMatrix::operator*(const MFloatMatrix& right) const
{
    return fromImath<MFloatMatrix>(imathOf(*this) * imathOf(right));
}

MFloatMatrix& MFloatMatrix::operator*=(float scale)
{
    return *this = *this * scale;
}

MFloatMatrix MFloatMatrix::operator*(float scale) const
{
    return fromImath<MFloatMatrix>(imathOf(*this) * scale);
}

bool MFloatMatrix::operator==(const MFloatMatrix& other) const
{
    return areEqual(matrix, other.matrix);
}

bool MFloatMatrix::operator!=(const MFloatMatrix& other) const
{
    return !(*this == other);
}

MFloatMatrix MFloatMatrix::inverse() const
{
    return fromImath<MFloatMatrix>(imathOf(*this).inverse());
}

MFloatMatrix MFloatMatrix::adjoint() const
{
    return adjointOf(*this);
}

MFloatMatrix MFloatMatrix::homogenize() const
{
    return homogenized(*this);
}

float MFloatMatrix::det4x4() const
{
    return imathOf(*this).determinant();
}

float MFloatMatrix::det3x3() const
{
    return determinant3(matrix);
}

bool MFloatMatrix::isEquivalent(const MFloatMatrix& other, float tolerance) const
{
    return areEquivalent(matrix, other.matrix, tolerance);
}

const char* MFloatMatrix::className()
{
    return "MFloatMatrix";
}

MFloatMatrix operator*(float scalar, const MFloatMatrix& matrix)
{
    return matrix * scalar;
}

std::ostream& operator<<(std::ostream& out, const MFloatMatrix& matrix)
{
    out << '[';
    for (int row = 0; row < 4; ++row) {
        out << (row == 0 ? "[" : ", [");
        for (int column = 0; column < 4; ++column)
            out << (column == 0 ? "" : ", ") << matrix.matrix[row][column];
        out << ']';
    }
    return out << ']';
}
