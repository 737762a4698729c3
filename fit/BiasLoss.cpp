#include "fit/BiasLoss.h"

static std::array<OriginPolynomial, RisingPieces> AllPieces()
{
    std::array<OriginPolynomial, RisingPieces> pieces;
    for (std::size_t k = 0; k < RisingPieces; ++k)
    {
        pieces[k] = RisingPiece(k);
    }
    return pieces;
}

static const std::array<OriginPolynomial, RisingPieces> Pieces = AllPieces();

std::array<double, RisingPieces> RisingPiecesAt(double r)
{
    std::array<double, RisingPieces> values{};
    for (std::size_t k = 0; k < RisingPieces; ++k)
    {
        values[k] = ValueOf(Pieces[k], r);
    }
    return values;
}

double LossAt(const BiasLosses& losses, double r)
{
    double loss = 0;
    for (std::size_t k = 0; k < RisingPieces; ++k)
    {
        loss += losses[k] * ValueOf(Pieces[k], r);
    }
    return loss;
}

void WriteBiasLoss(const BiasLosses& losses, double ratedVolts, PartValues& data)
{
    constexpr double Percent = 100;
    double scale = 1;
    for (std::size_t j = 0; j < std::tuple_size_v<OriginPolynomial>; ++j)
    {
        scale *= ratedVolts;
        double sum = 0;
        for (std::size_t k = 0; k < RisingPieces; ++k)
        {
            sum += losses[k] * Pieces[k][j];
        }
        data[Values::BiasPolynomial.Last - j] = 0 - Percent * sum / scale;
    }
}
