#pragma once

// Reports what a century of days with forty columns takes to be laid out on pages, and one of its pages to be drawn.
void MeasurePages();
