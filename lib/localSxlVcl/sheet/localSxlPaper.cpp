// The sheet's way out: paper and other programs.
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QPrintPreviewDialog>
#include <QPrinter>

#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "localSxl/export/localSxlExport.h"
#include "localSxl/paint/localSxlPages.h"
#include "localSxlVcl/sheet/localSxl.h"
#include "localVCL/dialog/localVclMessage.h"
#include "localVCL/text/localVclText.h"
#include "localVCL/window/localVclOnWindowThread.h"

namespace {

constexpr QSize previewSize{900, 700};  // pixels

}  // namespace

void localSxl::sheetPrint() {
    QPrinter printer(QPrinter::HighResolution);
    QPrintPreviewDialog preview(&printer, this);
    preview.resize(previewSize);
    connect(&preview, &QPrintPreviewDialog::paintRequested, this, [this](QPrinter* paper) {
        // A person waits for the pages.
        const localTurn::Hold turn;
        localSxlPagesPaint(sheet(), *paper);
    });
    preview.exec();
}

void localSxl::sheetExportAsk() {
    QString name;
    {
        const localTurn::Hold turn;
        name = QFileInfo(localVclQString(sheet().fileName())).completeBaseName();
    }
    const QPointer<localSxl> self(this);
    const QString chosen = QFileDialog::getSaveFileName(
        this, QStringLiteral("Экспорт"), name.isEmpty() ? QString() : name + ".pdf",
        QStringLiteral("PDF (*.pdf);;Таблица XLSX (*.xlsx);;CSV (*.csv);;HTML (*.html)"));
    if (self && !chosen.isEmpty()) {
        sheetExport(chosen);
    }
}

void localSxl::sheetExport(const QString& fileName) {
    inTurn([this, fileName] {
        std::u16string fault;
        if (localSxlExport(sheet(), localVclText(fileName), fault)) {
            return;
        }
        writeLine(fault);
        localVclAskOnWindowThread([&fault] {
            localVclMessageShow(localVclQString(fault), QStringLiteral("Экспорт"), 0,
                                QMessageBox::Critical);
        });
    });
}
