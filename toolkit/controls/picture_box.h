// A surface to draw on. Places are in twips from the corner inside its border, colours are
// 0xRRGGBB. It keeps the drawing as a list of strokes, so that it is sharp on every screen and in
// its picture.
#pragma once

#include <QImage>
#include <string>
#include <vector>

#include "toolkit/controls/control.h"

class QPainter;

namespace trabeon {

/// A colour of the palette of 16, by its number from 0: 0 black, 1 blue, 4 red, 15 white.
[[nodiscard]] Colour QBColor(int number);

struct Stroke {
    enum class Kind { Line, Circle, Text };
    Kind kind;
    double x1, y1;  // start of a line, centre of a circle, top left corner of a text
    double x2, y2;  // end of a line; x2 is the radius of a circle
    Colour colour;
    std::string text;
};

class PictureBox : public Control, public Container {
  public:
    explicit PictureBox(Container& parent);

    Colour ForeColor = 0x000000;  // of texts and lines from now on
    double CurrentX = 0;          // the pen: where the next text begins
    double CurrentY = 0;
    int TabWidth = 0;  // twips from one tab stop to the next; 0: eight average characters
    std::vector<double> TabStops;  // rising, in twips; after the last of them TabWidth counts

    void SetBackColor(Colour colour);
    void SetBorder(bool shown);

    /// Removes the drawing and moves the pen to the corner.
    void Cls();
    /// Moves the pen to the end of the line.
    void Line(double x1, double y1, double x2, double y2);
    void Line(double x1, double y1, double x2, double y2, Colour colour);
    void Circle(double x, double y, double radius, Colour colour);
    /// Moves the pen to the end of the text. A tab in the text moves it to the next tab stop.
    void Print(const std::string& text);
    /// The same, then moves the pen to the left edge of the next text row.
    void PrintLine(const std::string& text = "");

    [[nodiscard]] const std::vector<Stroke>& Drawn() const { return drawn_; }
    /// The drawing, with enough dots for paper.
    [[nodiscard]] QImage Picture() const;
    void CopyToClipboard() const;
    /// Shows a picture under the drawing, scaled to the whole box. A null image shows none.
    void SetPicture(const QImage& picture);
    /// Shows the picture of another box, scaled to the whole of this one. False: there is no
    /// picture, or no room for it.
    [[nodiscard]] bool StretchFrom(const PictureBox& source);

    QWidget* Canvas() const override;

  private:
    class Surface;
    void Add(const Stroke& stroke);
    void Paint(QPainter& painter, double pixelRatio) const;

    std::vector<Stroke> drawn_;
    QImage picture_;
    Colour backColour_ = 0xffffff;
};

}  // namespace trabeon
