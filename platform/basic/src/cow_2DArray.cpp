#include <cow_2DArray.h>
#include <nex_TextException.h>

void cow_RaiseOutOfRange(int row, int column, int rows, int columns) {
  NEX_THROW(nex_TextException(atr_StringBase::Format("Array index (%d, %d) out of range (%d x %d)",
                                                     row, column, rows, columns)),
            "cow/impl/cow_2DArray");
}
