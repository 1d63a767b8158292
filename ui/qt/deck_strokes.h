#pragma once
// The drawings of the deck and of the icon, as tables of strokes that art/make_deck.py writes.
#include <array>
#include <cstdint>
#include <span>

namespace tasca {

// A card is so many units wide and high; a coordinate counts parts of a unit.
inline constexpr int CardUnitsWide = 200;
inline constexpr int CardUnitsHigh = 308;
inline constexpr int PartsOfUnit = 32;

// One path, with its filling and its line. Colours count from 1 in the palette; 0 is none.
struct Stroke {
  std::uint16_t FirstOrder;  // in PathOrders
  std::uint16_t Orders;      // how many
  std::uint16_t FirstCoordinate;
  std::uint8_t Fill;
  std::uint8_t Line;
  std::uint16_t Width;   // of the line, in 1/100 of a unit
  std::uint8_t Opacity;  // in percent
};

// A stroke, or a symbol placed by a matrix.
struct Piece {
  std::int16_t Symbol;  // in Symbols; -1 for a stroke
  std::uint16_t Index;  // in Strokes
  std::array<float, 6> Matrix;
};

// A row of pieces, painted in this order.
struct Drawing {
  std::uint16_t FirstPiece;
  std::uint16_t Pieces;
  bool FlatEnds;  // the ends of its lines are flat, not round
};

// An icon, drawn on a square grid of so many units a side.
struct IconDrawing {
  int Side;
  Drawing Picture;
};

// 'M' and 'L' take one point (x, y), 'C' three, 'Z' none.
extern const std::span<const char> PathOrders;
extern const std::span<const std::int16_t> PathCoordinates;
extern const std::span<const Stroke> Strokes;
extern const std::span<const Piece> Pieces;
extern const std::span<const Drawing> Symbols;
// The back, then the cards 1..40: in full, and as they are drawn when they are small.
extern const std::span<const Drawing> CardDrawings;
extern const std::span<const Drawing> SmallCardDrawings;
// From the smallest grid to the largest.
extern const std::span<const IconDrawing> IconDrawings;
// 0xRRGGBB by colour number, on the light theme's table and on the dark one's.
extern const std::span<const std::uint32_t> LightPalette;
extern const std::span<const std::uint32_t> DarkPalette;

}  // namespace tasca
