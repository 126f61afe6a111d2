#include <cow_List.h>
#include <nex_TextException.h>

void cow_RaiseOutOfRange(int index, int length) {
  NEX_THROW(nex_TextException(
                atr_StringBase::Format("List index %d out of range (length %d)", index, length)),
            "cow/impl/cow_List");
}
