#include "app/mdlPublic.h"

PublicModule mdlPublic;

std::int16_t GetNumberingOffset()
{
    return mdlPublic.Marks.mnuPartNum(0) ? 0 : 2;
}

std::int16_t GetCodeForm()
{
    return mdlPublic.Marks.mnuViewCode(0) ? 0 : 1;
}

std::int16_t GetPartNumForm()
{
    return static_cast<std::int16_t>(GetNumberingOffset() + GetCodeForm());
}

CodeView GetCodeView()
{
    return GetCodeForm() == 0 ? CodeView::Eia : CodeView::Jis;
}
