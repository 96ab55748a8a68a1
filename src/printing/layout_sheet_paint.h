#pragma once

#include <QColor>
#include <QDomDocument>
#include <QFont>
#include <QRectF>
#include <QSizeF>
#include <QStringList>
#include <QTransform>
#include <filesystem>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <stdexcept>
#include <vector>

class QSvgRenderer;

namespace tallymere {

/// A drawing that cannot serve as a layout; what() says why in a person's words.
struct Layout_Fault : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A layout's drawing as read, in twips. Texts are set by the painter, in real letters: those that code fills and the
/// captions that only stand there. All else is art, which Qt Svg draws.
class Layout_Sheet {
 public:
  enum class Anchor { Start, Middle, End };

  struct Text {
    QString id;
    QStringList sections;  ///< the groups it stands in, from the outermost
    QPointF at;            ///< the anchor on the first line's base
    Anchor anchor = Anchor::Start;
    QFont font;  ///< its pixel size in twips
    QColor color = Qt::black;
    std::optional<QRectF> box;  ///< the room of a text that code fills
    QString caption;            ///< what the drawing itself says there
  };
  struct Room {
    QString id;
    QStringList sections;
    QRectF box;
  };

  /// Throws Layout_Fault when it is no drawing, or when one of these objects is missing, naming them all.
  static std::shared_ptr<const Layout_Sheet> Read(const std::filesystem::path& file,
                                                  std::span<const std::string> needed);
  ~Layout_Sheet();

  QSizeF size() const { return size_; }
  const std::vector<Text>& texts() const { return texts_; }
  const Room* room(const QString& id) const;  ///< the rectangle "id.box" or "id"; nullptr when there is none
  bool has(const QString& id) const { return ids_.contains(id); }
  /// The drawing without its texts and without these objects; it fills the whole sheet.
  QSvgRenderer& art(const std::set<QString>& hidden) const;

 private:
  struct Style;
  Layout_Sheet() = default;
  void read(const QByteArray& svg);
  void read_size(const QDomElement& root);
  void walk(const QDomElement& parent, const Style& outer);
  void take_text(const QDomElement& element, const Style& style);
  void take_lines(const QDomElement& element, const Style& style, Text text);
  void take_rectangle(const QDomElement& element, const Style& style);
  void join_boxes();

  QDomDocument drawing_;
  QTransform to_twips_;
  QSizeF size_;
  std::vector<Text> texts_;
  std::vector<Room> rooms_;
  std::set<QString> ids_;
  mutable std::vector<std::pair<std::set<QString>, std::unique_ptr<QSvgRenderer>>> arts_;  ///< the latest few
};

}  // namespace tallymere
