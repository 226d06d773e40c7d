#pragma once
// VU_CMatrix<T>: a table of object pointers addressed by (row, column), the
// storage of a grid. GetSize() gives (rows, columns): cx bounds the first
// index of GetAt, cy the second.
//
// Storage: one row-major array of rows x columns pointers, null where
// nothing is stored. SetAt grows the table to hold (row, col); removing
// an object shrinks it by the trailing rows and columns that became empty
// (UpdateGridSize), so GetSize always ends at a stored object. The matrix
// deletes objects only when a removal asks it to.
#include "framework/Size.h"
#include "framework/Types.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <unordered_set>
#include <vector>

template <class T> class VU_CMatrix {
public:
    // The largest table SetAt grows to (rows x columns).
    static constexpr std::int64_t kMaxCells = std::int64_t(1) << 22;

    VU_CMatrix() = default;
    VU_CMatrix(const VU_CMatrix&) = delete;
    VU_CMatrix& operator=(const VU_CMatrix&) = delete;
    virtual ~VU_CMatrix() = default;

    // Replaces the vector's content with the stored objects, row by row.
    virtual void GetObjects(std::vector<T*>& objects) const {
        objects.clear();
        for (T* object : m_cells)
            if (object != nullptr)
                objects.push_back(object);
    }
    // Stores object at (row, col), growing the table; storing null empties
    // the place. FALSE for a negative index or a table past kMaxCells.
    virtual BOOL SetAt(T* object, int row, int col) {
        if (row < 0 || col < 0)
            return FALSE;
        if (row >= m_rows || col >= m_cols) {
            if (object == nullptr)
                return TRUE;
            if (!Grow(std::max(m_rows, row + 1), std::max(m_cols, col + 1)))
                return FALSE;
        }
        m_cells[Index(row, col)] = object;
        if (object == nullptr)
            UpdateGridSize();
        return TRUE;
    }
    // Null outside the table.
    virtual T* GetAt(int row, int col) const {
        if (row < 0 || col < 0 || row >= m_rows || col >= m_cols)
            return nullptr;
        return m_cells[Index(row, col)];
    }
    virtual CSize GetSize() const { return CSize(m_rows, m_cols); }
    // Empties (row, col), deleting what was there when asked; FALSE when
    // nothing was there.
    virtual BOOL RemoveAt(int row, int col, bool deleteObject) {
        T* object = GetAt(row, col);
        if (object == nullptr)
            return FALSE;
        m_cells[Index(row, col)] = nullptr;
        if (deleteObject)
            delete object;
        UpdateGridSize();
        return TRUE;
    }
    // Empties every place holding object, without deleting it; FALSE when
    // it was nowhere.
    virtual BOOL Remove(T* object) {
        bool found = false;
        for (T*& cell : m_cells) {
            if (object != nullptr && cell == object) {
                cell = nullptr;
                found = true;
            }
        }
        if (found)
            UpdateGridSize();
        return found;
    }
    // Empties the table; deleting each object once even if stored twice.
    virtual void RemoveAll(bool deleteObjects) {
        std::vector<T*> cells;
        cells.swap(m_cells);
        m_rows = m_cols = 0;
        if (!deleteObjects)
            return;
        std::unordered_set<T*> deleted;
        for (T* object : cells)
            if (object != nullptr && deleted.insert(object).second)
                delete object;
    }

protected:
    // Drops the trailing rows and columns that hold nothing.
    virtual void UpdateGridSize() {
        int rows = 0, cols = 0;
        for (int r = 0; r < m_rows; ++r) {
            for (int c = 0; c < m_cols; ++c) {
                if (m_cells[Index(r, c)] != nullptr) {
                    rows = r + 1;
                    cols = std::max(cols, c + 1);
                }
            }
        }
        if (rows != m_rows || cols != m_cols)
            Resize(rows, cols);
    }

private:
    std::size_t Index(int row, int col) const {
        return std::size_t(row) * std::size_t(m_cols) + std::size_t(col);
    }
    bool Grow(int rows, int cols) {
        if (std::int64_t(rows) * cols > kMaxCells)
            return false;
        Resize(rows, cols);
        return true;
    }
    void Resize(int rows, int cols) {
        if (cols == m_cols) {
            m_cells.resize(std::size_t(rows) * std::size_t(cols), nullptr);
        } else {
            std::vector<T*> cells(std::size_t(rows) * std::size_t(cols), nullptr);
            for (int r = 0; r < std::min(rows, m_rows); ++r)
                for (int c = 0; c < std::min(cols, m_cols); ++c)
                    cells[std::size_t(r) * std::size_t(cols) + std::size_t(c)] =
                        m_cells[Index(r, c)];
            m_cells.swap(cells);
        }
        m_rows = rows;
        m_cols = cols;
    }

    int m_rows = 0, m_cols = 0;
    std::vector<T*> m_cells; // row-major, m_cols per row
};
