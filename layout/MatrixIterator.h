#pragma once
// VU_CMatrixIterator<T>: walks the stored (non-null) objects of a matrix row
// by row, each row from column 0 up. First and Last start the walk at either
// end; Next and Prev step from the current place (Next before any First
// starts at the beginning, Prev at the end). Each returns the object it
// arrives at, or null when it runs off the table; stepping back from past
// the end (or forward from before the start) returns to the table. The
// matrix must not change during a walk.
#include "layout/Matrix.h"

template <class T> class VU_CMatrixIterator {
public:
    explicit VU_CMatrixIterator(const VU_CMatrix<T>& matrix) : m_matrix(matrix) {}

    T* First() { return Seek(0, +1); }
    T* Last() { return Seek(Count() - 1, -1); }
    T* Next() { return Seek(m_position < 0 ? 0 : m_position + 1, +1); }
    T* Prev() {
        const long long count = Count();
        return Seek(m_position == -1 || m_position >= count ? count - 1 : m_position - 1, -1);
    }

private:
    long long Count() const {
        const CSize size = m_matrix.GetSize();
        return static_cast<long long>(size.cx) * size.cy;
    }
    // The first stored object from `from` in `step` direction.
    T* Seek(long long from, int step) {
        const long long count = Count();
        const int cols = m_matrix.GetSize().cy;
        for (m_position = from; m_position >= 0 && m_position < count; m_position += step) {
            T* object = m_matrix.GetAt(static_cast<int>(m_position / cols),
                                       static_cast<int>(m_position % cols));
            if (object != nullptr)
                return object;
        }
        m_position = m_position < 0 ? -2 : count; // off the table at either end
        return nullptr;
    }

    const VU_CMatrix<T>& m_matrix;
    long long m_position = -1; // -1 before the walk starts
};
