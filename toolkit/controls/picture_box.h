// A surface to draw on. Measures are twips from the corner inside its border, colours 0xRRGGBB. It
// keeps what is drawn as a list of strokes, so that it is sharp on every screen and in its picture.
#pragma once

#include <QImage>
#include <string>
#include <vector>

#include "toolkit/controls/control.h"

class QPainter;

namespace trabeon {

// The 16-colour palette: 0 black, 1 blue, 4 red, 15 white.
Colour QBColor(int number);

struct Stroke {
    enum class Kind { Line, Circle, Text };
    Kind kind;
    double x1, y1;  // a line's start, a circle's centre, a text's top left corner
    double x2, y2;  // a line's end; a circle's radius in x2
    Colour colour;
    std::string text;
};

class PictureBox : public Control, public Container {
  public:
    explicit PictureBox(Container& parent);

    Colour ForeColor = 0x000000;  // of what is drawn from now on, unless told otherwise
    double CurrentX = 0;          // where the next text begins
    double CurrentY = 0;
    int TabWidth = 0;  // twips from one tab stop to the next; 0: eight average characters
    std::vector<double> TabStops;  // rising, in twips; beyond the last of them TabWidth counts

    void SetBackColor(Colour colour);
    void SetBorder(bool shown);

    void Cls();  // the pen goes back to the corner
    // The pen ends where the line does.
    void Line(double x1, double y1, double x2, double y2);
    void Line(double x1, double y1, double x2, double y2, Colour colour);
    void Circle(double x, double y, double radius, Colour colour);
    // The pen ends behind the text; a tab moves it to the next tab stop.
    void Print(const std::string& text);
    // The same, then the pen goes to the left edge one text row below.
    void PrintLine(const std::string& text = "");

    const std::vector<Stroke>& Drawn() const { return drawn_; }
    // What is drawn, sharp on paper.
    QImage Picture() const;
    void CopyToClipboard() const;
    // Shows a picture, scaled to the whole box, below what is drawn; a null one shows none.
    void SetPicture(const QImage& picture);
    // Shows the whole picture of another box, scaled once to the whole of this one. False: there is
    // none, or no room for it.
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
