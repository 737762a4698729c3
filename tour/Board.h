#pragma once

#include <array>

/// Numbers of parts as global EIA numbers, in the order in which BoardBill names them.
constexpr std::array<const char*, 4> BoardParts = {"KTS32XB51E106MA01", "KTS31NR71A226KA01",
                                                   "KTS21JB51C106MA01", "KTS188R71H104KA01"};
/// The bill of a board of a few parts, whose numbers stand as "%1" to "%4".
constexpr const char* BoardBill = "Reference,Qty,MPN\n\"C1,C2\",2,%1\nC3-C6,4,%2\nC9,1,%3\nC10,1,%4\n"
                                  "R1,1,RX0402-10K\n";
/// The conditions on its nets, of which C9 fails one.
constexpr const char* BoardRails =
    "# ambient: -10..65C\n# tolerance: 10%\nnet,reference,dc bias,net converter,min capacitance\n"
    "+12V,\"C1,C2\",10.8..13.2V,buck vin=12 vout=3.3 iout=5 f=500kHz l=2.2uH side=input,\n"
    "+3V3,C3-C6,3.3V±3%,,\n+5V,C9,4.75..5.25V,,6uF\n";
