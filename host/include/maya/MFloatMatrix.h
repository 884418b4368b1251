// MFloatMatrix: a 4 x 4 matrix, single precision.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>

#define MFloatMatrix_kTol 1.0e-5f

/// A 4 x 4 matrix of floats. Points are row vectors: p' = p * M, so the translation stands in row 3, and a
/// product applies its left side first.
class OPENMAYA_EXPORT MFloatMatrix
{
public:
    /// The identity.
    MFloatMatrix();
    MFloatMatrix(const MFloatMatrix& src);
    MFloatMatrix(const double m[4][4]);
    MFloatMatrix(const float m[4][4]);
    ~MFloatMatrix();

    MFloatMatrix& operator=(const MFloatMatrix& other);

    /// Element by row and column, 0 to 3, not checked.
    float operator()(unsigned int row, unsigned int col) const { return matrix[row][col]; }
    float& operator()(unsigned int row, unsigned int col) { return matrix[row][col]; }
    const float* operator[](unsigned int row) const { return matrix[row]; }
    float* operator[](unsigned int row) { return matrix[row]; }

    /// Copies the elements out.
    MStatus get(double dest[4][4]) const;
    MStatus get(float dest[4][4]) const;
    MFloatMatrix transpose() const;
    MFloatMatrix& setToIdentity();

    /// Becomes left * right; either may be this matrix itself.
    MFloatMatrix& setToProduct(const MFloatMatrix& left, const MFloatMatrix& right);

    /// Element by element; a product of two matrices applies the left one first.
    MFloatMatrix& operator+=(const MFloatMatrix& right);
    MFloatMatrix operator+(const MFloatMatrix& right) const;
    MFloatMatrix& operator-=(const MFloatMatrix& right);
    MFloatMatrix operator-(const MFloatMatrix& right) const;
    MFloatMatrix& operator*=(const MFloatMatrix& right);
    MFloatMatrix& operator*=(float);
    MFloatMatrix operator*(const MFloatMatrix& right) const;
    MFloatMatrix operator*(float) const;

    /// Exact comparison of all elements.
    bool operator==(const MFloatMatrix& other) const;
    bool operator!=(const MFloatMatrix& other) const;

    /// The inverse; the identity when there is none.
    MFloatMatrix inverse() const;

    /// The transposed matrix of cofactors.
    MFloatMatrix adjoint() const;

    /// The matrix with the axes brought to length 1 and the last column to (0, 0, 0, 1).
    MFloatMatrix homogenize() const;

    /// The determinant of the whole, or of its upper left 3 x 3 part.
    float det4x4() const;
    float det3x3() const;

    /// Whether no element differs by more than the tolerance.
    bool isEquivalent(const MFloatMatrix& other, float tolerance = MFloatMatrix_kTol) const;

    /// The name of this class.
    static const char* className();

    float matrix[4][4];
};

/// Every element times the number.
OPENMAYA_EXPORT MFloatMatrix operator*(float scalar, const MFloatMatrix& matrix);

/// Writes "[[a, b, c, d], [...], [...], [...]]", row by row.
OPENMAYA_EXPORT std::ostream& operator<<(std::ostream& out, const MFloatMatrix& matrix);
