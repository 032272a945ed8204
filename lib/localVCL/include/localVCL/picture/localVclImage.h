// A framed picture.
#pragma once

#include <QPixmap>
#include <QWidget>

class localContextUTF8;

// Draws a frame and, inside its own size, the picture that its base64 text holds; a text that holds
// none leaves the frame alone.
class localVclImage : public QWidget {
    Q_OBJECT

public:
    explicit localVclImage(QWidget* parent = nullptr);

    // The picture is decoded when it is set, so that painting does not do it again.
    void pictureAsBase64Set(const QString& picture);
    const QString& pictureAsBase64() const { return pictureAsBase64_; }
    // Null when the text holds no picture.
    const QPixmap& pixmap() const { return pixmap_; }
    QSize sizeHint() const override;

    // For the owner's use: a caption or formula, and where it is evaluated. The context is not
    // owned.
    QString text;
    localContextUTF8* context = nullptr;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString pictureAsBase64_;
    QPixmap pixmap_;
};
