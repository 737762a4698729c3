#include "requests/ConverterEntry.h"

#include "requests/RequestError.h"

#include <gtest/gtest.h>

namespace
{
TEST(ConverterOf, TakesItsDataInAnyOrderWithUnits)
{
    const auto converter =
        ConverterOf(ConverterKind::Flyback, "f=250kHz n=4 l=40uH  vin=48V vout=5 iout=500mA mode=forced");
    EXPECT_DOUBLE_EQ(converter.Vin, 48);
    EXPECT_DOUBLE_EQ(converter.Vout, 5);
    EXPECT_DOUBLE_EQ(converter.Iout, 0.5);
    EXPECT_DOUBLE_EQ(converter.Hertz, 250e3);
    EXPECT_DOUBLE_EQ(converter.Henries, 40e-6);
    EXPECT_DOUBLE_EQ(converter.Turns, 4);
    EXPECT_TRUE(converter.IsForced);
}

/// A bare frequency is in kHz, as everywhere.
TEST(ConverterOf, TakesBareNumbers)
{
    EXPECT_DOUBLE_EQ(ConverterOf(ConverterKind::Buck, "vin=12 vout=3.3 iout=5 f=500 l=2.2E-6").Hertz, 500e3);
}

RequestErrorKind KindOfError(const char* typed)
{
    try
    {
        ConverterOf(ConverterKind::Buck, typed);
    }
    catch (const RequestError& error)
    {
        EXPECT_EQ(error.Key(), "buck");
        return error.Kind();
    }
    ADD_FAILURE() << "nothing is wrong";
    return RequestErrorKind::Line;
}

TEST(ConverterOf, TellsAWrongLineFromAnImpossibleConverter)
{
    EXPECT_EQ(KindOfError("vin=12"), RequestErrorKind::Syntax);
    EXPECT_EQ(KindOfError("vin=12 vin=13"), RequestErrorKind::Syntax);
    EXPECT_EQ(KindOfError("vin=12 n=4"), RequestErrorKind::Syntax);
    EXPECT_EQ(KindOfError("vin=12 mode=free"), RequestErrorKind::Syntax);
    EXPECT_EQ(KindOfError("vin=twelve"), RequestErrorKind::NotANumber);
    EXPECT_EQ(KindOfError("vin=12A"), RequestErrorKind::Unit);
    EXPECT_EQ(KindOfError("vin=12 vout=12 iout=1 f=500 l=1uH"), RequestErrorKind::Condition);
}
} // namespace
