// MMatrix: 4 x 4 doubles for row vectors.
#include <maya/MMatrix.h>

#include "support/matrix4.h"

#include <ostream>

using namespace tvxhost::api;

const MMatrix MMatrix::identity;

MMatrix::MMatrix()
{
    setToIdentity();
}

MMatrix::MMatrix(const MMatrix& src)
{
    copyElements(matrix, src.matrix);
}

MMatrix::MMatrix(const double m[4][4])
{
    std::copy_n(&m[0][0], 16, &matrix[0][0]);
}

MMatrix::MMatrix(const float m[4][4])
{
    std::copy_n(&m[0][0], 16, &matrix[0][0]);
}

MMatrix::~MMatrix() {}

MMatrix& MMatrix::operator=(const MMatrix& src)
{
    copyElements(matrix, src.matrix);
    return *this;
}

MStatus MMatrix::get(double dest[4][4]) const
{
    std::copy_n(&matrix[0][0], 16, &dest[0][0]);
    return MS::kSuccess;
}

MStatus MMatrix::get(float dest[4][4]) const
{
    std::transform(&matrix[0][0], &matrix[0][0] + 16, &dest[0][0],
                   [](double element) { return static_cast<float>(element); });
    return MS::kSuccess;
}

MMatrix MMatrix::transpose() const
{
    return fromImath<MMatrix>(imathOf(*this).transposed());
}

MMatrix& MMatrix::setToIdentity()
{
    return *this = fromImath<MMatrix>(Imath::M44d());
}

MMatrix& MMatrix::setToProduct(const MMatrix& left, const MMatrix& right)
{
    return *this = fromImath<MMatrix>(imathOf(left) * imathOf(right));
}

MMatrix& MMatrix::operator+=(const MMatrix& right)
{
    return *this = *this + right;
}

MMatrix MMatrix::operator+(const MMatrix& right) const
{
    return fromImath<MMatrix>(imathOf(*this) + imathOf(right));
}

MMatrix& MMatrix::operator-=(const MMatrix& right)
{
    return *this = *this - right;
}

MMatrix MMatrix::operator-(const MMatrix& right) const
{
    return fromImath<MMatrix>(imathOf(*this) - imathOf(right));
}

MMatrix& MMatrix::operator*=(const MMatrix& right)
{
    return setToProduct(*this, right);
}

MMatrix MMatrix::operator*(const MMatrix& right) const
{
    return fromImath<MMatrix>(imathOf(*this) * imathOf(right));
}

MMatrix& MMatrix::operator*=(double scale)
{
    return *this = *this * scale;
}

MMatrix MMatrix::operator*(double scale) const
{
    return fromImath<MMatrix>(imathOf(*this) * scale);
}

bool MMatrix::operator==(const MMatrix& other) const
{
    return areEqual(matrix, other.matrix);
}

bool MMatrix::operator!=(const MMatrix& other) const
{
    return !(*this == other);
}

MMatrix MMatrix::inverse() const
{
    return fromImath<MMatrix>(imathOf(*this).inverse());
}

MMatrix MMatrix::adjoint() const
{
    return adjointOf(*this);
}

MMatrix MMatrix::homogenize() const
{
    return homogenized(*this);
}

double MMatrix::det4x4() const
{
    return imathOf(*this).determinant();
}

double MMatrix::det3x3() const
{
    return determinant3(matrix);
}

bool MMatrix::isEquivalent(const MMatrix& other, double tolerance) const
{
    return areEquivalent(matrix, other.matrix, tolerance);
}

// The determinant is measured against the largest one that rows of these lengths can have, so that a small
// scale alone does not make a matrix singular.
bool MMatrix::isSingular() const
{
    double largest = 1.0;
    for (const auto& row : matrix)
        largest *= std::sqrt(row[0] * row[0] + row[1] * row[1] + row[2] * row[2] + row[3] * row[3]);
    return std::fabs(det4x4()) <= MMatrix_kTol * largest;
}

const char* MMatrix::className()
{
    return "MMatrix";
}

MMatrix operator*(double scalar, const MMatrix& matrix)
{
    return matrix * scalar;
}

std::ostream& operator<<(std::ostream& out, const MMatrix& matrix)
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
