// Draws the dialog's 72x72 icon (two arrows chasing each other round a blue tile) into a PNG.
//   make-icon OUT.png
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    QImage image(72, 72, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x1f, 0x6f, 0xd1));
    p.drawRoundedRect(QRectF(2, 2, 68, 68), 14, 14);

    QPen pen(Qt::white, 7, Qt::SolidLine, Qt::RoundCap);
    p.setPen(pen);
    p.setBrush(Qt::NoBrush);
    const QRectF ring(18, 18, 36, 36);
    p.drawArc(ring, 30 * 16, 130 * 16);
    p.drawArc(ring, 210 * 16, 130 * 16);
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    for (const QPointF& tip : {QPointF(21, 25), QPointF(51, 47)}) {
        const qreal d = tip.x() < 36 ? 1 : -1;
        QPainterPath head;
        head.moveTo(tip + QPointF(-8 * d, -6 * d));
        head.lineTo(tip + QPointF(8 * d, -6 * d));
        head.lineTo(tip + QPointF(0, 6 * d));
        head.closeSubpath();
        p.drawPath(head);
    }
    p.end();
    return image.save(QString::fromLocal8Bit(argv[1]), "PNG") ? 0 : 1;
}
