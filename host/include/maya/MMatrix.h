// MMatrix: a 4 x 4 matrix, double precision.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>

#define MMatrix_kTol 1.0e-10

/// A 4 x 4 matrix of doubles. Points are row vectors: p' = p * M, so the translation stands in row 3, and a
/// product applies its left side first.
class OPENMAYA_EXPORT MMatrix
{
public:
    /// The identity.
    MMatrix();
    MMatrix(const MMatrix& src);
    MMatrix(const double m[4][4]);
    MMatrix(const float m[4][4]);
    ~MMatrix();

    MMatrix& operator=(const MMatrix& other);

    /// Element by row and column, 0 to 3, not checked.
    double operator()(unsigned int row, unsigned int col) const { return matrix[row][col]; }
    double& operator()(unsigned int row, unsigned int col) { return matrix[row][col]; }
    const double* operator[](unsigned int row) const { return matrix[row]; }
    double* operator[](unsigned int row) { return matrix[row]; }

    /// Copies the elements out.
    MStatus get(double dest[4][4]) const;
    MStatus get(float dest[4][4]) const;
    MMatrix transpose() const;
    MMatrix& setToIdentity();

    /// Becomes left * right; either may be this matrix itself.
    MMatrix& setToProduct(const MMatrix& left, const MMatrix& right);

    /// Element by element; a product of two matrices applies the left one first.
    MMatrix& operator+=(const MMatrix& right);
    MMatrix operator+(const MMatrix& right) const;
    MMatrix& operator-=(const MMatrix& right);
    MMatrix operator-(const MMatrix& right) const;
    MMatrix& operator*=(const MMatrix& right);
    MMatrix& operator*=(double);
    MMatrix operator*(const MMatrix& right) const;
    MMatrix operator*(double) const;

    /// Exact comparison of all elements.
    bool operator==(const MMatrix& other) const;
    bool operator!=(const MMatrix& other) const;

    /// The inverse; the identity when there is none.
    MMatrix inverse() const;

    /// The transposed matrix of cofactors.
    MMatrix adjoint() const;

    /// The matrix with the axes brought to length 1 and the last column to (0, 0, 0, 1).
    MMatrix homogenize() const;

    /// The determinant of the whole, or of its upper left 3 x 3 part.
    double det4x4() const;
    double det3x3() const;

    /// Whether no element differs by more than the tolerance.
    bool isEquivalent(const MMatrix& other, double tolerance = MMatrix_kTol) const;

    /// Whether there is no inverse.
    bool isSingular() const;

    /// The name of this class.
    static const char* className();

    static const MMatrix identity; ///< ones on the diagonal

    double matrix[4][4];
};

/// Every element times the number.
OPENMAYA_EXPORT MMatrix operator*(double scalar, const MMatrix& matrix);

/// Writes "[[a, b, c, d], [...], [...], [...]]", row by row.
OPENMAYA_EXPORT std::ostream& operator<<(std::ostream& out, const MMatrix& matrix);
