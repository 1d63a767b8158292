"""The drawings of the deck and of the icon, and what writes them as SVG and as tables for C++."""
